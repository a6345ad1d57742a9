// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/XmlText.h"

#include "Platform/PropertyLists/RepairedText.h"

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

/// Longer than any tag or declaration of a property list. Readers compare the attributes of a tag with each other.
constexpr std::size_t longestTag = 256;
/// Longer than "&#x10FFFF;", the longest reference that XML defines by itself.
constexpr std::size_t longestReference = 16;

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte; });
    return lower;
}

/// What the XML declaration names as the encoding, in lower case; empty when it names none.
std::string declaredEncoding(std::string_view text)
{
    if (!text.starts_with("<?xml"))
        return {};
    const auto declaration = text.substr(0, std::min(text.find("?>"), longestTag));
    const auto name = declaration.find("encoding");
    const auto open = name == std::string_view::npos ? name : declaration.find_first_of("\"'", name);
    const auto close = open == std::string_view::npos ? open : declaration.find(declaration[open], open + 1);
    if (close == std::string_view::npos)
        return {};
    return lowerCase(declaration.substr(open + 1, close - open - 1));
}

std::string_view withoutSpaceInFront(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

/// The position after the tag or document type that begins at `start`; none when it is too long or never ends, or, for
/// a document type, when it has definitions.
std::size_t endOfTag(std::string_view text, std::size_t start)
{
    char quote = 0;
    const auto limit = std::min(text.size(), start + longestTag);
    for (auto position = start; position < limit; ++position) {
        const char character = text[position];
        if (quote != 0)
            quote = character == quote ? char{ 0 } : quote;
        else if (character == '"' || character == '\'')
            quote = character;
        else if (character == '>')
            return position + 1;
        else if (character == '[')
            return std::string_view::npos;
    }
    return std::string_view::npos;
}

/// Whether the reference that begins with this text is one that XML defines by itself. Readers pass over others without
/// a word where the document type names a file that might define them.
bool isKnownReference(std::string_view text)
{
    static constexpr std::array known{ "&#"sv, "&lt;"sv, "&gt;"sv, "&amp;"sv, "&quot;"sv, "&apos;"sv };
    return std::any_of(known.begin(), known.end(), [&](auto reference) { return text.starts_with(reference); });
}

/// The position after the markup or the reference that begins at `start`; none when it is not plain.
std::size_t endOfMarkup(std::string_view text, std::size_t start)
{
    struct Form {
        std::string_view opening;
        std::string_view closing;
        std::size_t longest;
    };
    static constexpr std::array<Form, 4> forms{ {
        { "<!--"sv, "-->"sv, std::string_view::npos },
        { "<![CDATA["sv, "]]>"sv, std::string_view::npos },
        { "<?"sv, "?>"sv, longestTag },
        { "&"sv, ";"sv, longestReference },
    } };
    for (const auto& form : forms) {
        if (!text.substr(start).starts_with(form.opening))
            continue;
        // Cut off first: a search to the end of the file for each of many references would be quadratic.
        const auto markup = text.substr(start, form.longest);
        if (form.opening == "&" && !isKnownReference(markup))
            return std::string_view::npos;
        const auto close = markup.find(form.closing, form.opening.size());
        return close == std::string_view::npos ? close : start + close + form.closing.size();
    }
    return endOfTag(text, start);
}

} // namespace

std::optional<std::string> xmlText(std::string_view bytes)
{
    if (bytes.starts_with("\xFE\xFF"sv))
        return utf8FromUtf16(bytes.substr(2), std::endian::big);
    if (bytes.starts_with("\xFF\xFE"sv))
        return utf8FromUtf16(bytes.substr(2), std::endian::little);
    if (bytes.starts_with("\0<"sv))
        return utf8FromUtf16(bytes, std::endian::big);
    if (bytes.starts_with("<\0"sv))
        return utf8FromUtf16(bytes, std::endian::little);
    if (bytes.starts_with("\xEF\xBB\xBF"sv))
        return repairedUtf8(withoutSpaceInFront(bytes.substr(3)));
    bytes = withoutSpaceInFront(bytes);
    const auto encoding = declaredEncoding(bytes);
    if (encoding.empty() || encoding == "utf-8" || encoding == "utf8" || encoding == "us-ascii" || encoding == "ascii")
        return repairedUtf8(bytes);
    if (encoding == "iso-8859-1" || encoding == "latin1")
        return utf8FromLatin1(bytes);
    return std::nullopt;
}

bool isPlainXml(std::string_view text)
{
    auto position = text.find_first_of("<&");
    while (position != std::string_view::npos) {
        const auto end = endOfMarkup(text, position);
        if (end == std::string_view::npos)
            return false;
        position = text.find_first_of("<&", end);
    }
    return true;
}

} // namespace Korvane
