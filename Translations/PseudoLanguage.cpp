// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Writes the catalogue of a language of nobody from the keys of another catalogue:
///
///     pseudo-language CATALOGUE RESULT
///
/// Each text is its key between two Hebrew letters, longer by a third. What stays without them on a screen is no text
/// of a catalogue; what does not fit there would not fit in German; and all of it reads from right to left.

#include <QFile>
#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

/// As many as Arabic, by whose rules the language counts.
constexpr int pluralForms = 6;

QString pseudoText(const QString& key)
{
    const QString letters = QStringLiteral(" הוזחט יכלמנ סעפצק רשתהו");
    const qsizetype wanted = std::max<qsizetype>(2, (key.size() + 2) / 3);
    QString filler;
    while (filler.size() < wanted)
        filler += letters;
    filler.truncate(wanted);
    return QStringLiteral("א%1%2ת").arg(key, filler);
}

/// Copies one message, but for its translation, which it makes.
void translate(QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    const bool counts = reader.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    writer.writeStartElement(QStringLiteral("message"));
    writer.writeAttributes(reader.attributes());
    QString key;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        if (name == QLatin1String("source"))
            key = text;
        if (name == QLatin1String("source") || name == QLatin1String("comment"))
            writer.writeTextElement(name, text);
    }
    writer.writeStartElement(QStringLiteral("translation"));
    if (!counts)
        writer.writeCharacters(pseudoText(key));
    for (int form = 0; counts && form < pluralForms; ++form)
        writer.writeTextElement(QStringLiteral("numerusform"), pseudoText(key));
    writer.writeEndElement();
    writer.writeEndElement();
}

bool translateAll(QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    writer.writeStartElement(QStringLiteral("TS"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    writer.writeAttribute(QStringLiteral("language"), QStringLiteral("ar_XB"));
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        if (reader.name() != QLatin1String("context")) {
            reader.skipCurrentElement();
            continue;
        }
        writer.writeStartElement(QStringLiteral("context"));
        while (reader.readNextStartElement()) {
            if (reader.name() == QLatin1String("message"))
                translate(reader, writer);
            else
                writer.writeTextElement(reader.name().toString(), reader.readElementText());
        }
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return !reader.hasError() && !writer.hasError();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("usage: pseudo-language CATALOGUE RESULT\n", stderr);
        return EXIT_FAILURE;
    }
    QFile catalogue(QFile::decodeName(argv[1]));
    QFile result(QFile::decodeName(argv[2]));
    if (!catalogue.open(QIODevice::ReadOnly) || !result.open(QIODevice::WriteOnly)) {
        std::fprintf(
            stderr, "pseudo-language: %s, %s\n", qPrintable(catalogue.errorString()), qPrintable(result.errorString()));
        return EXIT_FAILURE;
    }
    QXmlStreamReader reader(&catalogue);
    QXmlStreamWriter writer(&result);
    if (!translateAll(reader, writer) || !result.flush()) {
        std::fprintf(stderr, "pseudo-language: %s\n", qPrintable(reader.errorString()));
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
