// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ByteCountFormatter.h"

#include "Platform/UserLocale.h"

#include <array>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>

#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

namespace Korvane {

namespace {

/// How one unit is written: counts of `step` bytes, with the decimal point so many digits from the right.
struct Unit {
    const char* identifier; ///< As the Unicode locale data name it.
    const char* symbol;
    std::uint64_t step;
    int decimals;
    std::uint64_t nextUnit; ///< The count of steps that is written in the next unit.
};

constexpr std::uint64_t thousand = 1000, million = 1000 * thousand, billion = 1000 * million;
constexpr std::array<Unit, 7> units{ {
    { "byte", "bytes", 1, 0, 1000 }, { "kilobyte", "KB", thousand, 0, 1000 },
    { "megabyte", "MB", million / 10, 1, 10'000 }, { "gigabyte", "GB", billion / 100, 2, 100'000 },
    { "terabyte", "TB", billion* thousand / 100, 2, 100'000 }, { "petabyte", "PB", billion* million / 100, 2, 100'000 },
    { "exabyte", "EB", billion* billion / 100, 2, 100'000 }, // 64 bits end at 9.22 of these.
} };
constexpr std::size_t kilobyte = 1, petabyte = 5, exabyte = 6;

void replaceFirst(std::string& text, std::string_view from, std::string_view to)
{
    if (const auto at = text.find(from); at != std::string::npos)
        text.replace(at, from.size(), to);
}

/// The formatters of one locale; immutable once made, so that all threads share them.
class LocaleUnits {
public:
    explicit LocaleUnits(const std::string& localeName);

    /// `count` steps of a unit.
    std::string text(std::size_t unit, std::int64_t count) const;
    bool isEnglish() const { return m_isEnglish; }

private:
    std::string formatted(std::size_t unit, std::int64_t count) const;

    bool m_isEnglish = false;
    std::array<icu::number::LocalizedNumberFormatter, units.size()> m_formatters;
};

LocaleUnits::LocaleUnits(const std::string& localeName)
{
    using namespace icu::number;
    const icu::Locale locale(localeName.c_str());
    m_isEnglish = std::string_view(locale.getLanguage()) == "en";
    for (std::size_t index = 0; index < units.size(); ++index) {
        UErrorCode status = U_ZERO_ERROR;
        const Unit& unit = units[index];
        const auto measure = icu::MeasureUnit::forIdentifier(unit.identifier, status);
        m_formatters[index] = NumberFormatter::withLocale(locale)
                                  .unit(measure)
                                  .unitWidth(index == 0 ? UNUM_UNIT_WIDTH_FULL_NAME : UNUM_UNIT_WIDTH_SHORT)
                                  .precision(Precision::maxFraction(unit.decimals))
                                  .scale(Scale::powerOfTen(-unit.decimals));
    }
}

std::string LocaleUnits::formatted(std::size_t unit, std::int64_t count) const
{
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    const auto number = m_formatters[unit].formatInt(count, status);
    number.toTempString(status).toUTF8String(text);
    if (U_FAILURE(status) || text.empty())
        return std::to_string(count * static_cast<std::int64_t>(units[unit].step)) + " bytes";
    return text;
}

std::string LocaleUnits::text(std::size_t unit, std::int64_t count) const
{
    if (unit == exabyte) {
        // The locale data have no exabyte of their own; what is put together from "exa" and "byte" reads "Ebyte".
        auto text = formatted(petabyte, count);
        if (text.find(units[petabyte].symbol) == std::string::npos)
            return formatted(exabyte, count);
        replaceFirst(text, units[petabyte].symbol, units[exabyte].symbol);
        return text;
    }
    auto text = formatted(unit, count);
    if (unit == kilobyte && m_isEnglish)
        replaceFirst(text, "kB", units[kilobyte].symbol);
    return text;
}

std::string fileStyle(std::int64_t byteCount, const LocaleUnits& locale)
{
    if (byteCount == 0)
        return locale.isEnglish() ? "Zero KB" : locale.text(kilobyte, 0);
    // The magnitude of the least 64-bit number is none itself.
    const auto bits = static_cast<std::uint64_t>(byteCount);
    const std::uint64_t magnitude = byteCount < 0 ? 0 - bits : bits;
    std::size_t unit = 0;
    std::uint64_t count = magnitude;
    while (count >= units[unit].nextUnit) {
        ++unit;
        count = (magnitude + units[unit].step / 2) / units[unit].step;
    }
    const auto signedCount = static_cast<std::int64_t>(count);
    return locale.text(unit, byteCount < 0 ? -signedCount : signedCount);
}

std::shared_ptr<const LocaleUnits> unitsOfLocale(const std::string& name)
{
    static std::mutex mutex;
    static std::map<std::string, std::shared_ptr<const LocaleUnits>> known;
    const std::lock_guard lock(mutex);
    auto& entry = known[name];
    if (entry == nullptr)
        entry = std::make_shared<LocaleUnits>(name);
    return entry;
}

} // namespace

std::string ByteCountFormatter::string(std::int64_t byteCount)
{
    static const auto userUnits = unitsOfLocale(userLocaleName());
    return fileStyle(byteCount, *userUnits);
}

std::string ByteCountFormatter::string(std::int64_t byteCount, const std::string& localeName)
{
    return fileStyle(byteCount, *unitsOfLocale(localeName));
}

} // namespace Korvane
