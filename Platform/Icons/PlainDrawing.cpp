// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Icons/PlainDrawing.h"

#include "Platform/Icons/IconImage.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <set>
#include <vector>

namespace Korvane {
namespace {

/// Whether no tag has so many attributes that a reader, which compares them with each other, would take long.
bool hasOrdinaryTags(std::string_view text)
{
    constexpr int mostAttributes = 256;
    int attributes = 0;
    return std::none_of(text.begin(), text.end(), [&](char character) {
        attributes = character == '<' ? 0 : attributes + (character == '=' ? 1 : 0);
        return attributes > mostAttributes;
    });
}

/// Whether the address of a picture holds the picture itself.
bool isOwnPicture(const QString& address)
{
    const auto text = address.trimmed();
    constexpr QLatin1String mark("base64,");
    const auto at = text.lastIndexOf(mark);
    if (!text.startsWith(QLatin1String("data:")) || at < 0)
        return false;
    const auto bytes = QByteArray::fromBase64(text.mid(at + mark.size()).toLatin1());
    return pngWidth({ bytes.constData(), static_cast<std::size_t>(bytes.size()) }).has_value();
}

/// Reads one drawing without drawing it.
class DrawingReader {
public:
    explicit DrawingReader(std::string_view svg)
        : m_reader(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())))
        , m_size(svg.size())
    {
        // As the one that draws: it goes by the names as they are written.
        m_reader.setNamespaceProcessing(false);
    }

    bool isPlain()
    {
        constexpr std::size_t longest = std::size_t{ 2 } * 1024 * 1024;
        if (m_size > longest)
            return false;
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (!takesToken())
                return false;
        }
        const auto isHolder = [this](const QString& id) { return m_holders.count(id) != 0; };
        return !m_reader.hasError() && std::none_of(m_repeated.begin(), m_repeated.end(), isHolder);
    }

private:
    bool takesToken()
    {
        switch (m_reader.tokenType()) {
        case QXmlStreamReader::ProcessingInstruction:
            return m_reader.processingInstructionTarget() != QLatin1String("xml-stylesheet");
        case QXmlStreamReader::StartElement:
            return startElement();
        case QXmlStreamReader::EndElement:
            m_openIds.pop_back();
            return true;
        case QXmlStreamReader::Characters:
            return addWork(static_cast<std::size_t>(m_reader.text().count(QLatin1Char('{'))));
        default:
            return true;
        }
    }

    bool startElement()
    {
        constexpr std::size_t deepestElement = 256;
        const auto attributes = m_reader.attributes();
        m_openIds.push_back(attributes.value(QLatin1String("id")).toString());
        const auto name = m_reader.qualifiedName().toString().section(QLatin1Char(':'), -1);
        if (m_openIds.size() > deepestElement)
            return false;
        if (name != QLatin1String("image") && name != QLatin1String("use"))
            return true;
        for (const auto& attribute : attributes) {
            const auto address = attribute.value().toString();
            if (!attribute.qualifiedName().endsWith(QLatin1String("href")))
                continue;
            if (name == QLatin1String("use"))
                m_repeated.insert(address.mid(1));
            else if (!isOwnPicture(address))
                return false;
        }
        if (name == QLatin1String("image"))
            return ++m_pictures <= mostPictures;
        m_holders.insert(m_openIds.begin(), m_openIds.end());
        return addWork(1);
    }

    /// Each style is held against every part, and each repetition may be of nearly all: both multiply the length.
    bool addWork(std::size_t times)
    {
        constexpr std::size_t mostWork = std::size_t{ 8 } * 1024 * 1024;
        m_times += times;
        return m_size <= mostWork / m_times;
    }

    static constexpr int mostPictures = 2;

    QXmlStreamReader m_reader;
    std::size_t m_size;
    std::size_t m_times = 1;
    int m_pictures = 0;
    std::vector<QString> m_openIds;
    std::set<QString> m_holders; ///< Ids of what holds repetitions, and of these themselves.
    std::set<QString> m_repeated; ///< Ids of what is repeated.
};

} // namespace

bool isPlainDrawing(std::string_view svg) { return hasOrdinaryTags(svg) && DrawingReader(svg).isPlain(); }

} // namespace Korvane
