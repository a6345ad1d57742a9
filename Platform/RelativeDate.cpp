// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/RelativeDate.h"

#include "Platform/UserLocale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/reldatefmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace Korvane {

namespace {

constexpr double secondsPerYear = 365.2425 * 24 * 60 * 60;
/// In seconds. Within it every calendar counts without overflow.
constexpr double furthest = 1000 * secondsPerYear;
/// The latest and the earliest moment that counts as now.
constexpr double latestNow = 8000 * secondsPerYear;

struct Unit {
    UCalendarDateFields field;
    URelativeDateTimeUnit name;
    bool isOfCalendar; ///< Counted as the calendar turns it, not by what has passed.
};

constexpr std::array<Unit, 7> units{ {
    { UCAL_YEAR, UDAT_REL_UNIT_YEAR, true },
    { UCAL_MONTH, UDAT_REL_UNIT_MONTH, true },
    { UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK, true },
    { UCAL_DATE, UDAT_REL_UNIT_DAY, true },
    { UCAL_HOUR_OF_DAY, UDAT_REL_UNIT_HOUR, false },
    { UCAL_MINUTE, UDAT_REL_UNIT_MINUTE, false },
    { UCAL_SECOND, UDAT_REL_UNIT_SECOND, false },
} };

/// Both in milliseconds since 1970.
struct Span {
    UDate now = 0;
    UDate moment = 0;
};

/// How many whole units lie between now and the moment; negative for the past.
std::int32_t wholeUnits(icu::Calendar& calendar, const Span& span, UCalendarDateFields field, UErrorCode& status)
{
    calendar.setTime(span.now, status);
    return calendar.fieldDifference(span.moment, field, status);
}

/// The noon of the first day of the unit that `time` lies in. Clocks are never changed at noon.
UDate beginning(icu::Calendar& calendar, UDate time, UCalendarDateFields field, UErrorCode& status)
{
    calendar.setTime(time, status);
    calendar.set(UCAL_HOUR_OF_DAY, 12);
    calendar.set(UCAL_MINUTE, 0);
    calendar.set(UCAL_SECOND, 0);
    calendar.set(UCAL_MILLISECOND, 0);
    if (field == UCAL_YEAR)
        calendar.set(UCAL_DAY_OF_YEAR, 1);
    else if (field == UCAL_MONTH)
        calendar.set(UCAL_DAY_OF_MONTH, 1);
    else if (field == UCAL_WEEK_OF_YEAR)
        calendar.set(UCAL_DAY_OF_WEEK, calendar.getFirstDayOfWeek(status));
    return calendar.getTime(status);
}

/// How many times the calendar turns the unit between now and the moment; negative for the past.
std::int32_t turnedUnits(icu::Calendar& calendar, const Span& span, UCalendarDateFields field, UErrorCode& status)
{
    const Span aligned{ beginning(calendar, span.now, field, status), beginning(calendar, span.moment, field, status) };
    return wholeUnits(calendar, aligned, field, status);
}

/// Nothing where the locale data are missing.
std::string text(const Span& span, const icu::Locale& locale, const icu::TimeZone& zone)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(zone, locale, status));
    const icu::RelativeDateTimeFormatter formatter(
        locale, nullptr, UDAT_STYLE_LONG, UDISPCTX_CAPITALIZATION_NONE, status);
    if (U_FAILURE(status))
        return {};
    std::int32_t count = 0;
    URelativeDateTimeUnit name = UDAT_REL_UNIT_SECOND;
    for (const Unit& unit : units) {
        count = wholeUnits(*calendar, span, unit.field, status);
        if (count == 0)
            continue;
        name = unit.name;
        if (unit.isOfCalendar)
            count = turnedUnits(*calendar, span, unit.field, status);
        break;
    }
    icu::UnicodeString words;
    formatter.format(count, name, words, status);
    std::string result;
    return U_SUCCESS(status) ? words.toUTF8String(result) : result;
}

std::string text(double moment, double now, const std::string& localeName, const icu::TimeZone& zone)
{
    if (!std::isfinite(moment) || !std::isfinite(now))
        return {};
    const double reference = std::clamp(now, -latestNow, latestNow);
    const double other = std::clamp(moment, reference - furthest, reference + furthest);
    return text({ reference * 1000, other * 1000 }, icu::Locale(localeName.c_str()), zone);
}

} // namespace

std::string RelativeDate::string(double moment, double now)
{
    // Asked anew each time, for a person may travel while this runs.
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    return text(moment, now, userLocaleName(), zone ? *zone : *icu::TimeZone::getGMT());
}

std::string RelativeDate::string(
    double moment, double now, const std::string& localeName, const std::string& timeZoneName)
{
    const std::unique_ptr<icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(timeZoneName)));
    return text(moment, now, localeName, *zone);
}

} // namespace Korvane
