// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/RelativeDate.h"

#include "Tests/Support/EnvironmentVariable.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

namespace Korvane {
namespace {

/// Friday 2026-03-20 15:30:00 UTC, in seconds since 1970.
constexpr double now = 1'774'020'600;
constexpr double minute = 60, hour = 60 * minute, day = 24 * hour;

std::string english(double before) { return RelativeDate::string(now - before, now, "en_US", "UTC"); }

struct Expectation {
    double before; ///< Seconds before now; negative for the future.
    const char* text;
};

void PrintTo(const Expectation& expectation, std::ostream* out) { *out << expectation.before; }

class EnglishMoment : public testing::TestWithParam<Expectation> { };

TEST_P(EnglishMoment, IsToldInWords) { EXPECT_EQ(english(GetParam().before), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Now, EnglishMoment,
    testing::Values(Expectation{ 0, "now" }, Expectation{ 0.9, "now" }, Expectation{ -0.9, "now" }));

INSTANTIATE_TEST_SUITE_P(WhatHasPassedWhole, EnglishMoment,
    testing::Values(Expectation{ 1, "1 second ago" }, Expectation{ 59, "59 seconds ago" },
        Expectation{ 59.9, "59 seconds ago" }, Expectation{ minute, "1 minute ago" },
        Expectation{ 119, "1 minute ago" }, Expectation{ 59 * minute, "59 minutes ago" },
        Expectation{ hour - 1, "59 minutes ago" }, Expectation{ hour, "1 hour ago" },
        Expectation{ 2 * hour, "2 hours ago" }, Expectation{ 23 * hour, "23 hours ago" },
        Expectation{ day - 1, "23 hours ago" }));

INSTANTIATE_TEST_SUITE_P(DaysAsTheCalendarTurnsThem, EnglishMoment,
    testing::Values(Expectation{ day, "yesterday" }, Expectation{ 39 * hour, "yesterday" },
        Expectation{ 40 * hour, "2 days ago" }, Expectation{ 6 * day, "6 days ago" }));

INSTANTIATE_TEST_SUITE_P(LargerUnits, EnglishMoment,
    testing::Values(Expectation{ 7 * day, "last week" }, Expectation{ 12 * day, "last week" },
        Expectation{ 13 * day, "2 weeks ago" }, Expectation{ 27 * day, "4 weeks ago" },
        Expectation{ 28 * day, "last month" }, Expectation{ 47 * day, "last month" },
        Expectation{ 48 * day, "2 months ago" }, Expectation{ 364 * day, "12 months ago" },
        Expectation{ 365 * day, "last year" }, Expectation{ 3 * 365.25 * day, "3 years ago" }));

INSTANTIATE_TEST_SUITE_P(TheFuture, EnglishMoment,
    testing::Values(Expectation{ -1, "in 1 second" }, Expectation{ -59, "in 59 seconds" },
        Expectation{ -5 * minute, "in 5 minutes" }, Expectation{ -23 * hour, "in 23 hours" },
        Expectation{ -day, "tomorrow" }, Expectation{ -2 * day, "in 2 days" }, Expectation{ -7 * day, "next week" },
        Expectation{ -31 * day, "next month" }, Expectation{ -365 * day, "next year" }));

TEST(RelativeDate, SaysNothingOfWhatIsNoMoment)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : { nan, infinity, -infinity }) {
        EXPECT_EQ(RelativeDate::string(value, now, "en_US", "UTC"), "");
        EXPECT_EQ(RelativeDate::string(now, value, "en_US", "UTC"), "");
    }
}

TEST(RelativeDate, TakesWhatIsBeyondAThousandYearsForThat)
{
    for (const double value : { 1e12, 1e15, 1e18, 1e30, std::numeric_limits<double>::max() }) {
        EXPECT_EQ(RelativeDate::string(value, now, "en_US", "UTC"), "in 1,000 years");
        EXPECT_EQ(RelativeDate::string(-value, now, "en_US", "UTC"), "1,000 years ago");
        EXPECT_NE(RelativeDate::string(now, value, "en_US", "UTC"), "");
        EXPECT_NE(RelativeDate::string(now, -value, "en_US", "UTC"), "");
    }
    EXPECT_EQ(RelativeDate::string(std::numeric_limits<double>::denorm_min(), 0, "en_US", "UTC"), "now");
    EXPECT_EQ(RelativeDate::string(-1, 1, "en_US", "UTC"), "2 seconds ago");
}

TEST(RelativeDate, CountsInEveryCalendarWithoutFailing)
{
    for (const char* locale : { "th_TH", "fa_IR", "ar_SA", "he_IL@calendar=hebrew", "zh_CN@calendar=chinese",
             "ja_JP@calendar=japanese", "am_ET@calendar=ethiopic", "xx_nowhere", "" }) {
        for (const double before : { 5.0, 3 * hour, day, 9 * day, 40 * day, 400 * day, 1e9, 1e300, -1e300 })
            EXPECT_NE(RelativeDate::string(now - before, now, locale, "UTC"), "") << locale << ' ' << before;
    }
}

TEST(RelativeDate, TurnsTheDayWhereTheUserIs)
{
    // In Auckland it is half past four on Saturday, and 29 hours before it was still Thursday.
    EXPECT_EQ(RelativeDate::string(now - 27 * hour, now, "en_US", "UTC"), "yesterday");
    EXPECT_EQ(RelativeDate::string(now - 29 * hour, now, "en_US", "Pacific/Auckland"), "2 days ago");
    EXPECT_EQ(RelativeDate::string(now - 29 * hour, now, "en_US", "UTC"), "yesterday");
    EXPECT_EQ(RelativeDate::string(now - day, now, "en_US", "Nowhere/At_All"), "yesterday");
}

TEST(RelativeDate, KnowsDaysThatAreShorterAndLonger)
{
    // Berlin, 2026-03-29: the clock goes from two to three. The same time of day before is 23 hours away.
    constexpr double sundayNoon = 1'774'778'400; // 2026-03-29 12:00 in Berlin
    EXPECT_EQ(RelativeDate::string(sundayNoon - 23 * hour, sundayNoon, "en_US", "Europe/Berlin"), "yesterday");
    EXPECT_EQ(RelativeDate::string(sundayNoon - 22 * hour, sundayNoon, "en_US", "Europe/Berlin"), "22 hours ago");
    // Azores, 2026-03-29: midnight itself does not exist.
    EXPECT_EQ(RelativeDate::string(sundayNoon - 36 * hour, sundayNoon, "en_US", "Atlantic/Azores"), "2 days ago");
}

TEST(RelativeDate, BeginsTheWeekAsTheLocaleDoes)
{
    // From Friday back to Sunday of the week before: one week turned where it begins on Sunday, two where on Monday.
    EXPECT_EQ(RelativeDate::string(now - 12 * day, now, "en_US", "UTC"), "last week");
    EXPECT_EQ(RelativeDate::string(now - 12 * day, now, "en_GB", "UTC"), "2 weeks ago");
}

TEST(RelativeDate, SpeaksTheLanguageOfTheLocale)
{
    EXPECT_EQ(RelativeDate::string(now - day, now, "de_DE", "UTC"), "gestern");
    EXPECT_EQ(RelativeDate::string(now - 2 * day, now, "de_DE", "UTC"), "vorgestern");
    EXPECT_EQ(RelativeDate::string(now - 2 * hour, now, "fr_FR", "UTC"), "il y a 2 heures");
    EXPECT_EQ(RelativeDate::string(now - 2 * hour, now, "es_ES", "UTC"), "hace 2 horas");
    EXPECT_EQ(RelativeDate::string(now - day, now, "ja_JP", "UTC"), "昨日");
    EXPECT_EQ(RelativeDate::string(now + 3 * minute, now, "zh_CN", "UTC"), "3分钟后");
}

TEST(RelativeDate, TakesTheUsersLocaleWhenNoneIsNamed)
{
    // The tests run with LC_ALL=C.UTF-8, which is English.
    EXPECT_EQ(RelativeDate::string(now - 2 * hour, now), "2 hours ago");
}

#ifndef __APPLE__
TEST(RelativeDate, TakesLocaleAndTimeZoneFromTheEnvironment)
{
    // The locale is asked for once in a program's life: each case is a program of its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    struct Case {
        const char* locale;
        const char* zone;
        const char* text;
    };
    for (const auto& [locale, zone, text] : { Case{ "de_DE.UTF-8", "UTC", "gestern" },
             Case{ "de_DE.UTF-8", "Pacific/Auckland", "vorgestern" }, Case{ "C", "UTC", "yesterday" } }) {
        const EnvironmentVariable all("LC_ALL", locale);
        const EnvironmentVariable timeZone("TZ", zone);
        EXPECT_EXIT(
            {
                std::fputs(RelativeDate::string(now - 29 * hour, now).c_str(), stderr);
                std::exit(0);
            },
            testing::ExitedWithCode(0), text);
    }
}
#endif

TEST(RelativeDate, MayBeCalledByManyThreadsAtOnce)
{
    std::vector<std::string> results(8);
    std::vector<std::thread> threads;
    for (auto& result : results)
        threads.emplace_back([&result] {
            for (int round = 0; round < 50; ++round)
                result = RelativeDate::string(now - day, now, round % 2 == 0 ? "en" : "es_ES", "UTC");
        });
    for (auto& thread : threads)
        thread.join();
    for (const auto& result : results)
        EXPECT_EQ(result, "ayer");
}

} // namespace
} // namespace Korvane
