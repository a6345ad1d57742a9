// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Base64.h"
#include "CLI/Columns.h"
#include "CLI/JsonWriter.h"

#include <gtest/gtest.h>

#include <limits>

namespace Korvane {

TEST(JsonWriterTest, MembersComeInTheOrderGivenAndNestingIsSeparated)
{
    JsonWriter json;
    json.beginObject();
    json.key("b");
    json.number(-1);
    json.key("a");
    json.beginArray();
    json.string("x");
    json.boolean(true);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.endArray();
    json.key("c");
    json.number(std::numeric_limits<std::int64_t>::max());
    json.endObject();
    EXPECT_EQ(json.take(), "{\"b\":-1,\"a\":[\"x\",true,{},[]],\"c\":9223372036854775807}\n");
}

TEST(JsonWriterTest, TextsAreEscaped)
{
    JsonWriter json;
    json.string(std::string_view("a\"b\\c\n\t\x01\x7f\0z\xC3\xA9", 13));
    EXPECT_EQ(json.take(), "\"a\\\"b\\\\c\\u000a\\u0009\\u0001\\u007f\\u0000z\xC3\xA9\"\n");
}

TEST(JsonWriterTest, WriterIsEmptyAfterItsTextIsTaken)
{
    JsonWriter json;
    json.number(1);
    EXPECT_EQ(json.take(), "1\n");
    json.number(2);
    EXPECT_EQ(json.take(), "2\n");
}

TEST(Base64Test, VectorsOfTheStandard)
{
    EXPECT_EQ(base64(""), "");
    EXPECT_EQ(base64("f"), "Zg==");
    EXPECT_EQ(base64("fo"), "Zm8=");
    EXPECT_EQ(base64("foo"), "Zm9v");
    EXPECT_EQ(base64("foob"), "Zm9vYg==");
    EXPECT_EQ(base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
    EXPECT_EQ(base64("\xff\xfe\xfd"), "//79");
}

TEST(ColumnsTest, CharactersAreCounted)
{
    EXPECT_EQ(columns(""), 0U);
    EXPECT_EQ(columns("abc"), 3U);
    EXPECT_EQ(columns("\xC3\xA4\xE2\x80\x94"), 2U);
}

TEST(ColumnsTest, TextsArePaddedOnEitherSide)
{
    EXPECT_EQ(padded("\xC3\xA4", 3), "\xC3\xA4  ");
    EXPECT_EQ(paddedLeft("\xC3\xA4", 3), "  \xC3\xA4");
    EXPECT_EQ(padded("long", 2), "long");
}

TEST(ColumnsTest, LongTextsLoseTheirMiddle)
{
    EXPECT_EQ(elided("abcdef", 6), "abcdef");
    EXPECT_EQ(elided("abcdefg", 6), "abc\u2026fg");
    EXPECT_EQ(elided("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", 3), "\xC3\xA4\u2026\xC3\x9F");
    EXPECT_EQ(elided("abc", 1), "\u2026");
    EXPECT_EQ(elided("abc", 0), "");
}

} // namespace Korvane
