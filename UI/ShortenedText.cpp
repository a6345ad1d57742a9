// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ShortenedText.h"

#include "Platform/DisplayText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstddef>
#include <string>

namespace Korvane {

namespace {

constexpr QChar ellipsis(0x2026);
constexpr std::size_t longestSequence = 4; ///< Bytes of a character in UTF-8.

/// The last place not beyond `position` that is between two characters.
qsizetype boundaryBefore(const QString& text, qsizetype position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(position);
    return finder.isAtBoundary() ? position : std::max<qsizetype>(0, finder.toPreviousBoundary());
}

qsizetype boundaryAfter(const QString& text, qsizetype position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(position);
    const qsizetype next = finder.isAtBoundary() ? position : finder.toNextBoundary();
    return next < 0 ? text.size() : next;
}

QString shown(std::string_view bytes) { return QString::fromStdString(displayText(bytes)); }

/// The end of the bytes from where a character begins.
std::string_view tail(std::string_view bytes, std::size_t length)
{
    std::string_view end = bytes.substr(bytes.size() - length);
    while (!end.empty() && (static_cast<unsigned char>(end.front()) & 0xC0U) == 0x80U)
        end.remove_prefix(1);
    return end;
}

} // namespace

QString shortened(const QString& text, qsizetype limit, Cut cut)
{
    if (text.size() <= limit)
        return text;
    const qsizetype kept = limit - 1;
    const qsizetype head = boundaryBefore(text, cut == Cut::End ? kept : kept - kept / 2);
    if (cut == Cut::End)
        return text.left(head) + ellipsis;
    return text.left(head) + ellipsis + text.mid(boundaryAfter(text, text.size() - kept / 2));
}

QString shortened(std::string_view bytes, qsizetype limit, Cut cut)
{
    // So many bytes are more than `limit` characters, whatever they are.
    const std::size_t enough = (static_cast<std::size_t>(limit) + 1) * longestSequence;
    if (bytes.size() <= 2 * enough)
        return shortened(shown(bytes), limit, cut);
    const QString head = shown(bytes.substr(0, enough));
    return shortened(cut == Cut::End ? head : head + shown(tail(bytes, enough)), limit, cut);
}

} // namespace Korvane
