// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ByteCountFormatter.h"

#include "Tests/Support/EnvironmentVariable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <thread>
#include <vector>

namespace Korvane {
namespace {

/// Languages put special spaces between figure and unit.
std::string withPlainSpaces(std::string text)
{
    for (const std::string space : { "\u00A0", "\u202F" })
        for (auto at = text.find(space); at != std::string::npos; at = text.find(space))
            text.replace(at, space.size(), " ");
    return text;
}

std::string english(std::int64_t byteCount) { return ByteCountFormatter::string(byteCount, "en_US"); }

struct Expectation {
    std::int64_t byteCount;
    const char* text;
};

class EnglishByteCount : public testing::TestWithParam<Expectation> { };

TEST_P(EnglishByteCount, IsWrittenInFileStyle) { EXPECT_EQ(english(GetParam().byteCount), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Bytes, EnglishByteCount,
    testing::Values(Expectation{ 0, "Zero KB" }, Expectation{ 1, "1 byte" }, Expectation{ 2, "2 bytes" },
        Expectation{ 512, "512 bytes" }, Expectation{ 999, "999 bytes" }));

INSTANTIATE_TEST_SUITE_P(KilobytesHaveNoDecimals, EnglishByteCount,
    testing::Values(Expectation{ 1'000, "1 KB" }, Expectation{ 1'499, "1 KB" }, Expectation{ 1'500, "2 KB" },
        Expectation{ 4'096, "4 KB" }, Expectation{ 2'500, "3 KB" }, Expectation{ 999'499, "999 KB" }));

INSTANTIATE_TEST_SUITE_P(MegabytesHaveOne, EnglishByteCount,
    testing::Values(Expectation{ 1'000'000, "1 MB" }, Expectation{ 12'400'000, "12.4 MB" },
        Expectation{ 12'449'999, "12.4 MB" }, Expectation{ 12'450'000, "12.5 MB" },
        Expectation{ 999'949'999, "999.9 MB" }));

INSTANTIATE_TEST_SUITE_P(GigabytesAndAboveHaveTwo, EnglishByteCount,
    testing::Values(Expectation{ 1'000'000'000, "1 GB" }, Expectation{ 1'230'000'000, "1.23 GB" },
        Expectation{ 1'235'000'000, "1.24 GB" }, Expectation{ 1'500'000'000, "1.5 GB" },
        Expectation{ 1'050'000'000, "1.05 GB" }, Expectation{ 2'000'000'000'000, "2 TB" },
        Expectation{ 3'140'000'000'000'000, "3.14 PB" }, Expectation{ 1'000'000'000'000'000'000, "1 EB" },
        Expectation{ 2'720'000'000'000'000'000, "2.72 EB" }));

INSTANTIATE_TEST_SUITE_P(TheNextUnitWhenRoundingReachesIt, EnglishByteCount,
    testing::Values(Expectation{ 999'500, "1 MB" }, Expectation{ 999'999, "1 MB" }, Expectation{ 999'950'000, "1 GB" },
        Expectation{ 999'994'999'999, "999.99 GB" }, Expectation{ 999'995'000'000, "1 TB" },
        Expectation{ 999'995'000'000'000, "1 PB" }, Expectation{ 999'995'000'000'000'000, "1 EB" }));

INSTANTIATE_TEST_SUITE_P(NegativeOnesMirrored, EnglishByteCount,
    testing::Values(Expectation{ -1, "-1 byte" }, Expectation{ -999, "-999 bytes" }, Expectation{ -1'500, "-2 KB" },
        Expectation{ -999'500, "-1 MB" }, Expectation{ -12'450'000, "-12.5 MB" }));

INSTANTIATE_TEST_SUITE_P(TheEndsOf64Bits, EnglishByteCount,
    testing::Values(Expectation{ std::numeric_limits<std::int64_t>::max(), "9.22 EB" },
        Expectation{ std::numeric_limits<std::int64_t>::min(), "-9.22 EB" }));

TEST(ByteCountFormatter, WritesNumbersAndUnitsAsTheLocaleDoes)
{
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(12'400'000, "fr_FR")), "12,4 Mo");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(12'400'000, "de_DE")), "12,4 MB");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(12'000, "de_DE")), "12 kB");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(999, "fr_FR")), "999 octets");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(12'400'000, "ru_RU")), "12,4 МБ");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(1'230'000'000'000'000'000, "fr_FR")), "1,23 Eo");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(1'230'000'000'000'000'000, "de_DE")), "1,23 EB");
}

TEST(ByteCountFormatter, WritesZeroAsAFigureWhereEnglishHasTheWord)
{
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(0, "de_DE")), "0 kB");
    EXPECT_EQ(withPlainSpaces(ByteCountFormatter::string(0, "fr_FR")), "0 ko");
    EXPECT_EQ(ByteCountFormatter::string(0, "en_GB"), "Zero KB");
}

TEST(ByteCountFormatter, TakesAnUnknownLocaleAsTheRootOne)
{
    EXPECT_FALSE(ByteCountFormatter::string(12'400'000, "xx_nowhere").empty());
    EXPECT_NE(ByteCountFormatter::string(12'400'000, "").find("MB"), std::string::npos);
}

TEST(ByteCountFormatter, TakesTheUsersLocaleWhenNoneIsNamed)
{
    // The tests run with LC_ALL=C.UTF-8, which is English.
    EXPECT_EQ(ByteCountFormatter::string(0), "Zero KB");
    EXPECT_EQ(ByteCountFormatter::string(12'400'000), "12.4 MB");
}

#ifndef __APPLE__
TEST(ByteCountFormatter, TakesTheUsersLocaleFromTheEnvironment)
{
    // The locale is asked for once in a program's life: each case is a program of its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    struct Case {
        const char* locale;
        const char* text;
    };
    for (const auto& [locale, text] : { Case{ "fr_FR.UTF-8", "12,4.*Mo" }, Case{ "de_DE.UTF-8", "12,4.*MB" },
             Case{ "C", "12\\.4 MB" }, Case{ "nonsense", "12\\.4.*MB" } }) {
        const EnvironmentVariable all("LC_ALL", locale);
        EXPECT_EXIT(
            {
                std::fputs(ByteCountFormatter::string(12'400'000).c_str(), stderr);
                std::exit(0);
            },
            testing::ExitedWithCode(0), text);
    }
}
#endif

TEST(ByteCountFormatter, MayBeCalledByManyThreadsAtOnce)
{
    std::vector<std::string> results(8);
    std::vector<std::thread> threads;
    for (std::size_t index = 0; index < results.size(); ++index)
        threads.emplace_back([&results, index] {
            for (int round = 0; round < 200; ++round)
                results[index] = ByteCountFormatter::string(1'230'000'000, round % 2 == 0 ? "en" : "es_ES");
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_TRUE(std::all_of(results.begin(), results.end(), [&](const auto& text) { return text == results[0]; }));
    EXPECT_EQ(withPlainSpaces(results[0]), "1,23 GB");
}

} // namespace
} // namespace Korvane
