// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"
#include "Platform/PropertyLists/XmlPropertyList.h"
#include "Platform/PropertyLists/XmlText.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

using namespace std::string_literals;

std::string repeated(std::string_view text, std::size_t count)
{
    std::string result;
    for (std::size_t copy = 0; copy < count; ++copy)
        result += text;
    return result;
}

std::string nested(std::size_t depth)
{
    return "<plist>" + repeated("<array>", depth) + repeated("</array>", depth) + "</plist>";
}

bool isRead(const std::string& bytes) { return PropertyList::parse(bytes).has_value(); }

std::optional<std::string> stringIn(const std::string& bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? list->root().string() : std::nullopt;
}

std::string utf16(std::string_view ascii, bool isBigEndian)
{
    std::string bytes;
    for (const char character : ascii)
        bytes += isBigEndian ? "\0"s + character : character + "\0"s;
    return bytes;
}

} // namespace

TEST(HostileXmlList, EveryPrefixIsRefused)
{
    const auto list = "<?xml version=\"1.0\"?><!DOCTYPE plist PUBLIC \"a\" \"b\"><!-- c --><plist><dict><key>a</key>"
                      "<string>&amp;<![CDATA[x]]></string><key>b</key><array><date>2001-01-01T00:00:00Z</date></array>"
                      "</dict></plist>"s;
    ASSERT_TRUE(isRead(list));
    for (std::size_t length = 0; length < list.size(); ++length)
        EXPECT_FALSE(isRead(list.substr(0, length))) << length;
}

TEST(HostileXmlList, DepthIsBounded)
{
    EXPECT_TRUE(isRead(nested(PropertyList::deepestElement)));
    EXPECT_FALSE(isRead(nested(PropertyList::deepestElement + 1)));
    EXPECT_FALSE(isRead(nested(100'000))) << "a hundred thousand levels";
    EXPECT_FALSE(isRead(repeated("<array>", 100'000))) << "levels that nobody closes";
}

TEST(HostileXmlList, DefinitionsOfEntitiesAreRefused)
{
    std::string bomb = "<?xml version='1.0'?><!DOCTYPE plist [<!ENTITY a0 'ha'>";
    for (int level = 1; level < 30; ++level) {
        const auto inner = "&a" + std::to_string(level - 1) + ";";
        bomb += "<!ENTITY a" + std::to_string(level) + " '" + inner + inner + "'>";
    }
    EXPECT_FALSE(isRead(bomb + "]><plist><string>&a29;</string></plist>"));
    EXPECT_FALSE(isRead("<!DOCTYPE plist [<!ENTITY a 'b'>]><plist><string>&a;</string></plist>"));
    EXPECT_FALSE(isRead("<!DOCTYPE plist [<!ENTITY % a '<!ENTITY b \"c\">'>%a;]><plist><string>&b;</string></plist>"));
    EXPECT_FALSE(isRead("<!DOCTYPE plist SYSTEM '>' [<!ENTITY a 'b'>]><plist><string>&a;</string></plist>"));
    EXPECT_FALSE(
        isRead("<!DOCTYPE plist [<!ENTITY a SYSTEM 'file:///etc/passwd'>]><plist><string>&a;</string></plist>"));
    EXPECT_TRUE(isRead("<!DOCTYPE plist SYSTEM 'file:///nowhere'><plist><true/></plist>")) << "never fetched";
}

TEST(HostileXmlList, ReadsEveryEncodingOfTheKind)
{
    const auto text = "<?xml version='1.0' encoding='UTF-16'?><plist><string>wide</string></plist>"s;
    for (const bool isBigEndian : { true, false }) {
        const auto mark = isBigEndian ? "\xFE\xFF"s : "\xFF\xFE"s;
        EXPECT_EQ(stringIn(mark + utf16(text, isBigEndian)), "wide");
        EXPECT_EQ(stringIn(utf16(text, isBigEndian)), "wide") << "without a mark";
        EXPECT_FALSE(isRead(mark + utf16(text, isBigEndian) + "x")) << "half a character at the end";
    }
    EXPECT_EQ(stringIn("\xEF\xBB\xBF<plist><string>marked</string></plist>"), "marked");
    EXPECT_EQ(stringIn("<?xml version='1.0' encoding=\"ISO-8859-1\"?><plist><string>\xFC</string></plist>"), "ü");
    EXPECT_EQ(stringIn("<?xml version='1.0' encoding='us-ascii'?><plist><string>a</string></plist>"), "a");
    EXPECT_FALSE(isRead("<?xml version='1.0' encoding='EBCDIC'?><plist><string>a</string></plist>"));
}

TEST(HostileXmlList, LoneHalvesOfCharactersAreReplaced)
{
    const auto open = utf16("<plist><string>", false);
    const auto close = utf16("</string></plist>", false);
    EXPECT_EQ(stringIn("\xFF\xFE" + open + "\x00\xD8"s + close), "\uFFFD");
    EXPECT_EQ(stringIn("\xFF\xFE" + open + "\x3D\xD8\x00\xDE"s + close), "😀");
}

// A reader of XML compares the attributes of a tag with each other, and looks for the end of what it has begun.
TEST(HostileXmlList, WhatCostsMoreThanItsLengthIsRefusedFirst)
{
    std::string tag = "<plist";
    for (int attribute = 0; attribute < 100'000; ++attribute)
        tag += " a" + std::to_string(attribute) + "=''";
    EXPECT_FALSE(isPlainXml(tag + "><true/></plist>"));
    EXPECT_FALSE(isPlainXml("<" + std::string(5000, 'a') + "/>"));
    EXPECT_FALSE(isPlainXml("<a b='" + std::string(5000, '>') + "'/>"));
    EXPECT_FALSE(isPlainXml("<?" + std::string(5000, 'a') + "?>"));
    EXPECT_FALSE(isPlainXml("<string>&" + std::string(5000, 'a') + ";</string>"));
    EXPECT_FALSE(isPlainXml(repeated("<!--", 100'000)));
    EXPECT_FALSE(isPlainXml(repeated("&", 100'000)));
    EXPECT_TRUE(
        isPlainXml("<!--" + std::string(5000, '<') + "--><string><![CDATA[" + std::string(5000, '&') + "]]></string>"));
    EXPECT_TRUE(isPlainXml("no markup at all"));
    EXPECT_TRUE(isPlainXml(""));
}

TEST(HostileXmlList, TheTableGrowsWithTheFileAndNoFaster)
{
    for (const std::size_t count : { 100, 1000, 10'000 }) {
        const auto store = parseXmlPropertyList(
            "<plist><array>" + repeated("<dict><key>k</key><true/></dict>", count) + "</array></plist>");
        ASSERT_TRUE(store);
        EXPECT_EQ(store->entries.size(), 3 * count + 1);
        EXPECT_EQ(store->references.size(), 3 * count);
        EXPECT_EQ(store->text.size(), count);
    }
}

} // namespace Korvane
