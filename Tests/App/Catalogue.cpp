// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/Catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

namespace Korvane {

namespace {

CatalogueEntry readEntry(QXmlStreamReader& reader)
{
    CatalogueEntry entry;
    entry.state = reader.attributes().value(QLatin1String("type")).toString();
    QString plain;
    while (reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isStartElement())
            entry.forms.append(reader.readElementText());
        else if (reader.isCharacters())
            plain += reader.text();
    }
    if (entry.forms.isEmpty())
        entry.forms.append(plain);
    return entry;
}

void readMessage(QXmlStreamReader& reader, const QString& context, Catalogue& catalogue)
{
    CatalogueKey key{ context, {}, {}, reader.attributes().value(QLatin1String("numerus")) == QLatin1String("yes") };
    CatalogueEntry entry;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("source"))
            key.source = reader.readElementText();
        else if (reader.name() == QLatin1String("comment"))
            key.comment = reader.readElementText();
        else if (reader.name() == QLatin1String("translation"))
            entry = readEntry(reader);
        else
            reader.skipCurrentElement();
    }
    catalogue.emplace(key, entry);
}

} // namespace

std::optional<Catalogue> readCatalogue(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    Catalogue catalogue;
    QXmlStreamReader reader(&file);
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        QString context;
        while (reader.readNextStartElement()) {
            if (reader.name() == QLatin1String("name"))
                context = reader.readElementText();
            else if (reader.name() == QLatin1String("message"))
                readMessage(reader, context, catalogue);
            else
                reader.skipCurrentElement();
        }
    }
    if (reader.hasError())
        return std::nullopt;
    return catalogue;
}

} // namespace Korvane
