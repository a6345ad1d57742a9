// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/XmlPropertyList.h"

#include "Platform/PropertyList.h"
#include "Platform/PropertyLists/XmlScalars.h"
#include "Platform/PropertyLists/XmlText.h"

#include <QXmlStreamReader>

namespace Korvane {

namespace {

using Index = PropertyListStore::Index;
using Kind = PropertyListStore::Kind;

/// Reads one XML property list, once. Open containers are on a stack of its own.
class XmlListReader {
public:
    explicit XmlListReader(const QString& text)
        : m_reader(text)
    {
        m_reader.setNamespaceProcessing(false);
    }

    std::optional<PropertyListStore> read();

private:
    struct OpenContainer {
        Kind kind;
        std::size_t firstPending;
    };

    bool readToken();
    bool startElement();
    bool endElement();
    bool mayStart(QStringView name) const;
    bool open(Kind kind);
    bool place(std::optional<Index> value);
    std::optional<Index> readScalar(const QString& name);
    bool isAtKey() const;

    QXmlStreamReader m_reader;
    PropertyListStore m_store;
    std::vector<OpenContainer> m_open;
    std::vector<Index> m_pending; // values of all open containers; of dictionaries key, value, key, value
    bool m_isInList = false;
    bool m_hasRoot = false;
};

std::optional<PropertyListStore> XmlListReader::read()
{
    while (!m_reader.atEnd()) {
        m_reader.readNext();
        if (!readToken())
            return std::nullopt;
    }
    if (m_reader.hasError() || !m_hasRoot)
        return std::nullopt;
    return std::move(m_store);
}

bool XmlListReader::readToken()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        return startElement();
    case QXmlStreamReader::EndElement:
        return endElement();
    case QXmlStreamReader::Characters:
        return m_reader.isWhitespace();
    case QXmlStreamReader::NoToken:
    case QXmlStreamReader::StartDocument:
    case QXmlStreamReader::EndDocument:
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::DTD:
    case QXmlStreamReader::ProcessingInstruction:
        return true;
    case QXmlStreamReader::Invalid:
    case QXmlStreamReader::EntityReference:
        break;
    }
    return false;
}

/// Whether the innermost container is a dictionary that waits for a key.
bool XmlListReader::isAtKey() const
{
    return !m_open.empty() && m_open.back().kind == Kind::Dictionary
        && (m_pending.size() - m_open.back().firstPending) % 2 == 0;
}

bool XmlListReader::mayStart(QStringView name) const
{
    if (m_open.empty() && m_hasRoot)
        return false;
    return (name == u"key") == isAtKey();
}

bool XmlListReader::startElement()
{
    const auto name = m_reader.qualifiedName().toString();
    if (name == u"plist") {
        const bool isFirst = !m_isInList && !m_hasRoot && m_open.empty();
        m_isInList = true;
        return isFirst;
    }
    if (!mayStart(name))
        return false;
    if (name == u"dict")
        return open(Kind::Dictionary);
    if (name == u"array")
        return open(Kind::Array);
    return place(readScalar(name));
}

bool XmlListReader::open(Kind kind)
{
    if (m_open.size() >= PropertyList::deepestElement)
        return false;
    m_open.push_back({ kind, m_pending.size() });
    return true;
}

/// The end of a container, for scalars are read to their ends, or of the whole list.
bool XmlListReader::endElement()
{
    if (m_open.empty())
        return m_hasRoot;
    const auto [kind, first] = m_open.back();
    const auto count = m_pending.size() - first;
    const bool isDictionary = kind == Kind::Dictionary;
    if (isDictionary && count % 2 != 0)
        return false;
    auto& references = m_store.references;
    const auto start = references.size();
    const std::size_t step = isDictionary ? 2 : 1;
    for (std::size_t part = 0; part < step; ++part) {
        for (auto position = first + part; position < m_pending.size(); position += step)
            references.push_back(m_pending[position]);
    }
    m_pending.resize(first);
    m_open.pop_back();
    return place(m_store.addContainer(kind, count / step, start));
}

/// Puts a value into the innermost container, or makes it the root.
bool XmlListReader::place(std::optional<Index> value)
{
    if (!value)
        return false;
    if (!m_open.empty()) {
        m_pending.push_back(*value);
        return true;
    }
    m_store.root = *value;
    m_hasRoot = true;
    return true;
}

std::optional<Index> XmlListReader::readScalar(const QString& name)
{
    const auto bytes = m_reader.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement).toUtf8();
    if (m_reader.hasError())
        return std::nullopt;
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (name == u"string" || name == u"key")
        return m_store.addString(text);
    if (name == u"integer")
        return addXmlInteger(m_store, text);
    if (name == u"real")
        return addXmlReal(m_store, text);
    if (name == u"date")
        return addXmlDate(m_store, text);
    if (name == u"data")
        return addXmlData(m_store, text);
    if ((name == u"true" || name == u"false") && text.empty())
        return m_store.addBoolean(name == u"true");
    return std::nullopt;
}

} // namespace

std::optional<PropertyListStore> parseXmlPropertyList(std::string_view bytes)
{
    const auto text = xmlText(bytes);
    if (!text || !isPlainXml(*text))
        return std::nullopt;
    return XmlListReader(QString::fromUtf8(text->data(), static_cast<qsizetype>(text->size()))).read();
}

} // namespace Korvane
