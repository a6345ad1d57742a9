// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TextSearch.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Korvane {
namespace {

bool contains(std::string_view text, std::string_view part, const std::string& locale = "en_US")
{
    return localizedCaseInsensitiveContains(text, part, locale);
}

TEST(TextSearch, LooksAwayFromCase)
{
    EXPECT_TRUE(contains("Voicemail Tool", "MAIL"));
    EXPECT_TRUE(contains("Mail", "MAIL"));
    EXPECT_TRUE(contains("MAIL", "mail"));
    EXPECT_FALSE(contains("Mall", "MAIL"));
    EXPECT_FALSE(contains("Ma il", "mail"));
    EXPECT_TRUE(contains("Ärger", "äRG", "de_DE"));
    EXPECT_TRUE(contains("ΑΘΗΝΑ", "αθηνα", "el"));
    EXPECT_TRUE(localizedCaseInsensitiveContains("Korvane", "VAN"));
}

TEST(TextSearch, LooksAtAccents)
{
    EXPECT_FALSE(contains("Café", "cafe"));
    EXPECT_FALSE(contains("Cafe", "café"));
    EXPECT_FALSE(contains("Cafe\u0301", "cafe"));
    EXPECT_FALSE(contains("Ärger", "arger", "de_DE"));
}

TEST(TextSearch, TakesComposedAndDecomposedLettersForTheSame)
{
    EXPECT_TRUE(contains("Cafe\u0301 Noir", "CAFÉ"));
    EXPECT_TRUE(contains("Café Noir", "CAFE\u0301"));
    EXPECT_TRUE(contains("Cafe\u0301", "\u00C9"));
    EXPECT_FALSE(contains("Cafe\u0301", "e"));
}

TEST(TextSearch, ReadsSharpSAsTwo)
{
    EXPECT_TRUE(contains("Straßenkarte", "STRASSE", "de_DE"));
    EXPECT_TRUE(contains("STRASSENKARTE", "straße", "de_DE"));
}

TEST(TextSearch, KnowsTheLettersOfTurkish)
{
    EXPECT_TRUE(contains("KIRMIZI", "kırmızı", "tr"));
    EXPECT_TRUE(contains("İstanbul", "istanbul", "tr"));
    EXPECT_FALSE(contains("KIRMIZI", "kirmizi", "tr"));
    EXPECT_TRUE(contains("KIRMIZI", "kirmizi", "en_US"));
}

TEST(TextSearch, FindsHalfOfWhatALanguageCountsAsOneLetter)
{
    EXPECT_TRUE(contains("Chrome", "c", "cs_CZ"));
    EXPECT_TRUE(contains("Chrome", "HROM", "sk"));
    EXPECT_TRUE(contains("Shotwell", "s", "sq"));
    EXPECT_TRUE(contains("Gyroscope", "G", "hu"));
    EXPECT_TRUE(contains("Photos", "p", "cy"));
    EXPECT_TRUE(contains("Ångström", "AANG", "da"));
    EXPECT_FALSE(contains("Čas", "c", "cs_CZ"));
    EXPECT_FALSE(contains("C\u030Cas", "c", "cs_CZ"));
    EXPECT_FALSE(contains("q\u0303", "q", "cs_CZ"));
    EXPECT_TRUE(contains("q\u0303q", "q", "cs_CZ"));
}

TEST(TextSearch, FindsAnEmptyPartEverywhere)
{
    EXPECT_TRUE(contains("Mail", ""));
    EXPECT_TRUE(contains("", ""));
    EXPECT_TRUE(contains("Mail", "\u200D"));
    EXPECT_FALSE(contains("", "mail"));
}

TEST(TextSearch, ComesToNoHarmWithBytesThatAreNoText)
{
    EXPECT_TRUE(contains("Ed\xFFitor", "ITOR"));
    EXPECT_FALSE(contains("Editor", "\xFF"));
    EXPECT_TRUE(contains("Ed\xFFitor", "\xFE"));
    EXPECT_TRUE(contains(std::string("Ed\0itor", 7), "or"));
    EXPECT_FALSE(contains("\xC3", "a"));
}

TEST(TextSearch, ServesALocaleThatIsNone)
{
    EXPECT_TRUE(contains("Mail", "MAI", "no such locale"));
    EXPECT_TRUE(contains("Mail", "MAI", ""));
}

TEST(TextSearch, KeysOrderAsAReaderDoesWithoutRegardToCase)
{
    const auto keys = [](const std::vector<std::string_view>& texts, const std::string& locale = "en_US") {
        return localizedCaseInsensitiveKeys(texts, locale);
    };
    const auto ascending = keys({ "", "a", "\u00E4", "A b", "ab", "B", "com.example.a", "com.example.B", "Z" });
    EXPECT_TRUE(std::is_sorted(ascending.begin(), ascending.end()));
    const auto same = keys({ "Agent", "aGENT", "AGENT" });
    EXPECT_TRUE(same[0] == same[1] && same[1] == same[2]);
    const auto accents = keys({ "e", "\u00E9", "e\u0301" });
    EXPECT_LT(accents[0], accents[1]);
    EXPECT_EQ(accents[1], accents[2]);
    const auto swedish = keys({ "z", "\u00E4" }, "sv_SE"), german = keys({ "z", "\u00E4" }, "de_DE");
    EXPECT_LT(swedish[0], swedish[1]);
    EXPECT_LT(german[1], german[0]);
}

TEST(TextSearch, KeysAreGivenUpWhenCancelled)
{
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(localizedCaseInsensitiveKeys({ "text" }, cancellation), CancellationError);
    EXPECT_THROW(localizedCaseInsensitiveKeys({ "text" }, "en_US", cancellation), CancellationError);
}

TEST(TextSearch, KeysAreMadeOfAnyBytes)
{
    const std::string large(1'000'000, 'x');
    EXPECT_EQ(localizedCaseInsensitiveKeys({ "\xff", std::string_view("a\0b", 3), large }).size(), 3U);
    EXPECT_TRUE(localizedCaseInsensitiveKeys({}).empty());
}

} // namespace
} // namespace Korvane
