// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Korvane {

namespace {

using Kind = PropertyList::Value::Kind;

std::string plist(std::string_view content)
{
    return std::string(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" )"
                       R"("http://www.apple.com/DTDs/PropertyList-1.0.dtd"><plist version="1.0">)")
        .append(content)
        .append("</plist>");
}

std::optional<PropertyList::Value> root(const std::string& document)
{
    const auto list = PropertyList::parse(document);
    return list ? std::optional(list->root()) : std::nullopt;
}

std::optional<PropertyList::Value> only(std::string_view content) { return root(plist(content)); }

} // namespace

TEST(XmlPropertyList, ReadsADictionary)
{
    const auto value = only("\n<dict>\n\t<key>b</key>\n\t<string> text </string>\n\t<key>a</key><array><true/><false/>"
                            "<dict/><array/></array><key>b</key><string>again</string></dict>\n");
    ASSERT_TRUE(value);
    ASSERT_EQ(value->size(), 3U);
    EXPECT_EQ(value->key(0).string(), "b");
    EXPECT_EQ(value->value("b")->string(), " text ") << "the first of two, and its blanks";
    const auto array = *value->value("a");
    ASSERT_EQ(array.size(), 4U);
    EXPECT_EQ(array.at(0).boolean(), true);
    EXPECT_EQ(array.at(1).boolean(), false);
    EXPECT_EQ(array.at(2).kind(), Kind::Dictionary);
    EXPECT_EQ(array.at(3).kind(), Kind::Array);
    EXPECT_EQ(value->at(2).string(), "again");
}

TEST(XmlPropertyList, ReadsIntegers)
{
    EXPECT_EQ(only("<integer>42</integer>")->integer(), 42);
    EXPECT_EQ(only("<integer>\n -42 </integer>")->integer(), -42);
    EXPECT_EQ(only("<integer>+7</integer>")->integer(), 7);
    EXPECT_EQ(only("<integer>0xfF</integer>")->integer(), 255);
    EXPECT_EQ(only("<integer>-0X10</integer>")->integer(), -16);
    EXPECT_EQ(only("<integer>-9223372036854775808</integer>")->integer(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(only("<integer>18446744073709551615</integer>")->integer(), std::nullopt);
    EXPECT_EQ(only("<integer>18446744073709551615</integer>")->unsignedInteger(), ~std::uint64_t{ 0 });
    for (const char* wrong : { "", " ", "-", "0x", "1.5", "1 2", "--1", "+-1", "abc", "18446744073709551616",
             "-9223372036854775809", "0x10000000000000000", "1e3" })
        EXPECT_FALSE(only("<integer>" + std::string(wrong) + "</integer>")) << wrong;
}

TEST(XmlPropertyList, ReadsReals)
{
    EXPECT_EQ(only("<real>1.5</real>")->real(), 1.5);
    EXPECT_EQ(only("<real>-2e3</real>")->real(), -2000);
    EXPECT_EQ(only("<real> +0.25 </real>")->real(), 0.25);
    EXPECT_EQ(only("<real>7</real>")->real(), 7);
    EXPECT_TRUE(std::isnan(*only("<real>NaN</real>")->real()));
    EXPECT_EQ(only("<real>Infinity</real>")->real(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(only("<real>-inf</real>")->real(), -std::numeric_limits<double>::infinity());
    for (const char* wrong : { "", "1,5", "one", "1.5x", "--1", "+-1", "1 2" })
        EXPECT_FALSE(only("<real>" + std::string(wrong) + "</real>")) << wrong;
}

TEST(XmlPropertyList, ReadsDates)
{
    using namespace std::chrono;
    EXPECT_EQ(only("<date>2001-01-01T00:00:00Z</date>")->date(), sys_days(year(2001) / January / 1));
    EXPECT_EQ(only("<date>1999-12-31T23:59:58Z</date>")->date(),
        sys_days(year(1999) / December / 31) + hours(23) + minutes(59) + seconds(58));
    EXPECT_EQ(only("<date>2024-02-29T00:00:00Z</date>")->date(), sys_days(year(2024) / February / 29));
    EXPECT_EQ(only("<date>0001-01-01T00:00:00Z</date>")->date(), sys_days(year(1) / January / 1));
    EXPECT_EQ(only("<date>9999-12-31T00:00:00Z</date>")->date(), sys_days(year(9999) / December / 31));
    for (const char* wrong : { "", "2001-01-01", "2001-01-01T00:00:00", "2001-01-01 00:00:00Z", "2001-13-01T00:00:00Z",
             "2023-02-29T00:00:00Z", "2001-01-01T24:00:00Z", "2001-01-01T00:60:00Z", "2001-01-01T00:00:61Z",
             "2001-1-01T000:00:00Z", "+001-01-01T00:00:00Z", "2001-01-01T00:00:00+1" })
        EXPECT_FALSE(only("<date>" + std::string(wrong) + "</date>")) << wrong;
}

TEST(XmlPropertyList, ReadsData)
{
    EXPECT_EQ(only("<data>\n\tAAEC\n\t/w==\n</data>")->data(), std::string("\0\1\2\xFF", 4));
    EXPECT_EQ(only("<data></data>")->data(), "");
    EXPECT_FALSE(only("<data>A*B=</data>"));
    EXPECT_EQ(only("<data>AAEC</data>")->string(), std::nullopt);
}

TEST(XmlPropertyList, ReadsTextsAsXmlWritesThem)
{
    EXPECT_EQ(only("<string>a &lt;&amp;&gt; &quot;b&apos; &#65;&#x20AC;</string>")->string(), "a <&> \"b' A€");
    EXPECT_EQ(only("<string><![CDATA[<raw> & &amp;]]> tail</string>")->string(), "<raw> & &amp; tail");
    EXPECT_EQ(only("<string>one<!-- remark & <x> -->two</string>")->string(), "onetwo");
    EXPECT_EQ(only("<string/>")->string(), "");
    EXPECT_EQ(only("<string>Größe 😀</string>")->string(), "Größe 😀");
    EXPECT_EQ(only("<!-- a --><array><!-- <b> --><?what ever?><true/></array>")->size(), 1U);
    EXPECT_FALSE(only("<string>&#0;</string>"));
    EXPECT_FALSE(only("<string>&#xD800;</string>"));
    EXPECT_FALSE(only(std::string("<string>a\0b</string>", 20)));
    EXPECT_EQ(only("<string>a\xFF"
                   "b</string>")
                  ->string(),
        "a\uFFFDb");
}

TEST(XmlPropertyList, RefusesWhatIsNoPropertyList)
{
    for (const char* wrong : { "", "text", "<unknown/>", "<true/><true/>", "<dict><key>a</key></dict>",
             "<dict><string>a</string></dict>", "<dict><key>a</key><key>b</key></dict>", "<array><key>a</key></array>",
             "<key>a</key>", "<array>text</array>", "<string><b/></string>", "<true>x</true>", "<dict>", "<plist/>",
             "<array><plist><true/></plist></array>", "<string>&unknown;</string>", "<string a='1' a='2'/>",
             "<dict><key>a</key>text<true/></dict>", "<array></dict>" })
        EXPECT_FALSE(only(wrong)) << wrong;
    EXPECT_FALSE(root(plist("<true/>") + "<plist><true/></plist>"));
    EXPECT_FALSE(root(plist("<true/>") + "tail"));
    EXPECT_FALSE(root("{ key = value; }"));
    EXPECT_FALSE(root("<html><body>not found</body></html>"));
}

TEST(XmlPropertyList, NeedsNeitherDeclarationNorElementAround)
{
    EXPECT_EQ(root("<plist><true/></plist>")->boolean(), true);
    EXPECT_EQ(root("\n  <?xml version='1.0'?><dict><key>a</key><true/></dict>\n")->value("a")->boolean(), true);
    EXPECT_EQ(root("<string>alone</string>")->string(), "alone");
}

} // namespace Korvane
