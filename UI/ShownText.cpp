// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ShownText.h"

#include <QStringList>

#include <algorithm>

namespace Korvane {

namespace {

constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

/// A character of the text and where the next one begins, in UTF-16 units.
struct Character {
    char32_t code;
    qsizetype end;
};

Character characterAt(QStringView text, qsizetype position)
{
    const QChar first = text[position];
    if (first.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate())
        return { QChar::surrogateToUcs4(first, text[position + 1]), position + 2 };
    return { first.unicode(), position + 1 };
}

bool isRightToLeft(QChar::Direction direction)
{
    return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
}

/// Takes into a stretch the brackets right beside it whose partners it holds: a pair is drawn as one only together.
void takeInBrackets(QStringView text, qsizetype& begin, qsizetype& end)
{
    int unclosed = 0;
    int unopened = 0;
    for (const QChar unit : text.sliced(begin, end - begin)) {
        if (unit.category() == QChar::Punctuation_Open)
            ++unclosed;
        else if (unit.category() == QChar::Punctuation_Close && unclosed > 0)
            --unclosed;
        else if (unit.category() == QChar::Punctuation_Close)
            ++unopened;
    }
    for (; unclosed > 0 && end < text.size() && text[end].category() == QChar::Punctuation_Close; --unclosed)
        ++end;
    for (; unopened > 0 && begin > 0 && text[begin - 1].category() == QChar::Punctuation_Open; --unopened)
        --begin;
}

/// Appends what stands between two slashes, or at an end of the text.
void appendIsolated(QString& shown, QStringView part)
{
    qsizetype begin = -1;
    qsizetype end = -1;
    for (qsizetype position = 0; position < part.size();) {
        const Character character = characterAt(part, position);
        const QChar::Direction direction = QChar::direction(character.code);
        if (isRightToLeft(direction)) {
            if (begin < 0)
                begin = position;
            end = character.end;
        } else if (direction == QChar::DirNSM && end == position) {
            end = character.end; // A mark goes with its letter.
        }
        position = character.end;
    }
    if (begin < 0) {
        shown += part;
        return;
    }
    takeInBrackets(part, begin, end);
    shown += part.first(begin);
    shown += firstStrongIsolate;
    shown += part.sliced(begin, end - begin);
    shown += popDirectionalIsolate;
    shown += part.sliced(end);
}

QString isolatedLine(const QString& line)
{
    QString shown;
    shown.reserve(line.size() + 8);
    for (qsizetype begin = 0; begin <= line.size();) {
        const qsizetype slash = line.indexOf(QLatin1Char('/'), begin);
        const qsizetype end = slash < 0 ? line.size() : slash;
        appendIsolated(shown, QStringView(line).sliced(begin, end - begin));
        if (slash >= 0)
            shown += QLatin1Char('/');
        begin = end + 1;
    }
    return shown;
}

} // namespace

QString ShownText::isolated(const QString& text)
{
    constexpr char16_t firstRightToLeft = 0x590;
    // Nothing that is written from right to left comes before it: most texts are told at a glance.
    if (std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < firstRightToLeft; }))
        return text;
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        // No name has isolates of its own once it can be shown: this is a sentence that was filled in.
        if (!line.contains(firstStrongIsolate))
            line = isolatedLine(line);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace Korvane
