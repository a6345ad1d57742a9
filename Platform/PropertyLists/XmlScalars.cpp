// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/XmlScalars.h"

#include "Platform/PropertyLists/PropertyListStore.h"

#include <QByteArray>
#include <charconv>
#include <chrono>
#include <limits>

namespace Korvane {

namespace {

using Reach = PropertyListStore::Reach;

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes a sign off the front; true when it is a minus.
bool takeSign(std::string_view& text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    return isNegative;
}

template <typename Number> std::optional<Number> wholeNumber(std::string_view digits, int base)
{
    Number number = 0;
    const auto* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number, base);
    if (digits.empty() || result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

/// The number in these places of a date, all digits.
std::optional<unsigned> datePart(std::string_view text, std::size_t start, std::size_t length)
{
    const auto digits = text.substr(start, length);
    if (digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    return wholeNumber<unsigned>(digits, 10);
}

} // namespace

std::optional<std::uint32_t> addXmlInteger(PropertyListStore& store, std::string_view text)
{
    text = trimmed(text);
    const bool isNegative = takeSign(text);
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (isHexadecimal)
        text.remove_prefix(2);
    const auto size = wholeNumber<std::uint64_t>(text, isHexadecimal ? 16 : 10);
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!size || (isNegative && *size > largest + 1))
        return std::nullopt;
    if (isNegative)
        return store.addInteger(~*size + 1, Reach::Signed);
    return store.addInteger(*size, *size > largest ? Reach::Unsigned : Reach::Signed);
}

std::optional<std::uint32_t> addXmlReal(PropertyListStore& store, std::string_view text)
{
    text = trimmed(text);
    auto unsignedText = text;
    const bool isNegative = takeSign(unsignedText);
    const auto name = QByteArray(unsignedText.data(), static_cast<qsizetype>(unsignedText.size())).toLower();
    if (name == "nan")
        return store.addReal(std::numeric_limits<double>::quiet_NaN());
    if (name == "inf" || name == "infinity") {
        constexpr auto infinity = std::numeric_limits<double>::infinity();
        return store.addReal(isNegative ? -infinity : infinity);
    }
    bool isNumber = false;
    const auto number = name.toDouble(&isNumber);
    const bool hasTwoSigns = name.startsWith('-') || name.startsWith('+');
    if (!isNumber || hasTwoSigns)
        return std::nullopt;
    return store.addReal(isNegative ? -number : number);
}

std::optional<std::uint32_t> addXmlDate(PropertyListStore& store, std::string_view text)
{
    using namespace std::chrono;
    constexpr std::string_view form = "dddd-dd-ddTdd:dd:ddZ";
    if (text.size() != form.size())
        return std::nullopt;
    for (std::size_t position = 0; position < form.size(); ++position) {
        if (form[position] != 'd' && text[position] != form[position])
            return std::nullopt;
    }
    const auto yearPart = datePart(text, 0, 4);
    const auto monthPart = datePart(text, 5, 2);
    const auto dayPart = datePart(text, 8, 2);
    const auto hour = datePart(text, 11, 2);
    const auto minute = datePart(text, 14, 2);
    const auto second = datePart(text, 17, 2);
    // A minute may have a second more, when the year is put right.
    if (!yearPart || !monthPart || !dayPart || !hour || !minute || !second || *hour > 23 || *minute > 59
        || *second > 60)
        return std::nullopt;
    const year_month_day date(year(static_cast<int>(*yearPart)), month(*monthPart), day(*dayPart));
    if (!date.ok())
        return std::nullopt;
    constexpr sys_days reference = year(2001) / January / 1;
    const auto passed = (sys_days(date) - reference) + hours(*hour) + minutes(*minute) + seconds(*second);
    return store.addDate(static_cast<double>(duration_cast<std::chrono::seconds>(passed).count()));
}

std::optional<std::uint32_t> addXmlData(PropertyListStore& store, std::string_view text)
{
    QByteArray encoded(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    qsizetype length = 0;
    for (const char character : text) {
        if (blanks.find(character) == std::string_view::npos)
            encoded[length++] = character;
    }
    encoded.truncate(length);
    const auto decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return store.addData({ decoded.decoded.constData(), static_cast<std::size_t>(decoded.decoded.size()) });
}

} // namespace Korvane
