// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"
#include "Tests/Fuzz/BinaryListBuilder.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace Korvane {

namespace {

using Kind = PropertyList::Value::Kind;

/// The root of a list of this one object.
std::optional<PropertyList::Value> only(const std::string& object)
{
    const auto list = PropertyList::parse(binaryList({ object }));
    return list ? std::optional(list->root()) : std::nullopt;
}

} // namespace

TEST(BinaryPropertyList, ReadsIntegersOfEverySize)
{
    EXPECT_EQ(only(binaryInteger(0xFF, 0))->integer(), 255) << "one byte has no sign";
    EXPECT_EQ(only(binaryInteger(0xFFFF, 1))->integer(), 65535);
    EXPECT_EQ(only(binaryInteger(0xFFFFFFFF, 2))->integer(), 4294967295);
    EXPECT_EQ(only(binaryInteger(~std::uint64_t{ 0 }, 3))->integer(), -1) << "eight bytes have one";
    EXPECT_EQ(only(binaryInteger(std::uint64_t{ 1 } << 63U, 3))->integer(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(only(binaryInteger(5, 4))->integer(), 5);
    EXPECT_EQ(only('\x14' + std::string(16, '\xFF'))->integer(), -1);
    EXPECT_EQ(only(binaryInteger(5, 0))->unsignedInteger(), 5U);
    EXPECT_EQ(only(binaryInteger(~std::uint64_t{ 0 }, 3))->unsignedInteger(), std::nullopt);
}

TEST(BinaryPropertyList, TellsIntegersThatNoSignedNumberHolds)
{
    const auto large = only(binaryInteger(~std::uint64_t{ 0 }, 4));
    EXPECT_EQ(large->kind(), Kind::Integer);
    EXPECT_EQ(large->integer(), std::nullopt);
    EXPECT_EQ(large->unsignedInteger(), std::numeric_limits<std::uint64_t>::max());

    const auto wider = only('\x14' + bigEndianBytes(1, 8) + bigEndianBytes(7, 8));
    EXPECT_EQ(wider->kind(), Kind::Integer);
    EXPECT_EQ(wider->integer(), std::nullopt);
    EXPECT_EQ(wider->unsignedInteger(), std::nullopt);
    EXPECT_EQ(only('\x14' + std::string(8, '\xFF') + bigEndianBytes(7, 8))->integer(), std::nullopt);
}

TEST(BinaryPropertyList, ReadsReals)
{
    EXPECT_EQ(only('\x22' + bigEndianBytes(0x3FC00000, 4))->real(), 1.5);
    EXPECT_EQ(only(binaryReal(-0.1))->real(), -0.1);
    EXPECT_TRUE(std::isnan(*only(binaryReal(std::nan("")))->real()));
    EXPECT_FALSE(only('\x21' + bigEndianBytes(0, 2))) << "a real of two bytes";
    EXPECT_FALSE(only('\x24' + bigEndianBytes(0, 16))) << "a real of sixteen bytes";
}

TEST(BinaryPropertyList, CountsDatesFromTheYear2001)
{
    using namespace std::chrono;
    EXPECT_EQ(only(binaryDate(0))->date(), sys_days(year(2001) / January / 1));
    EXPECT_EQ(only(binaryDate(-86400.5))->date(), sys_days(year(2000) / December / 31) - milliseconds(500));
    EXPECT_EQ(only(binaryDate(63113904000.0))->date(), sys_days(year(4001) / January / 1)) << "the distant future";
    for (const double beyond : { 1e300, -1e300, std::numeric_limits<double>::infinity(), std::nan("") }) {
        EXPECT_EQ(only(binaryDate(beyond))->kind(), Kind::Date);
        EXPECT_EQ(only(binaryDate(beyond))->date(), std::nullopt) << beyond;
    }
    EXPECT_FALSE(only('\x32' + bigEndianBytes(0, 4))) << "a date of four bytes";
}

TEST(BinaryPropertyList, ReadsTextsOfEveryEncoding)
{
    EXPECT_EQ(only(binaryAscii("plain"))->string(), "plain");
    EXPECT_EQ(only(binaryAscii(""))->string(), "");
    EXPECT_EQ(only(binaryAscii(std::string(300, 'x')))->string(), std::string(300, 'x'));
    EXPECT_EQ(only(binaryUtf16(u"Gr\u00F6\u00DFe \U0001F600 \u20AC"))->string(), "Größe 😀 €");
    EXPECT_EQ(only(binaryUtf8("Größe"))->string(), "Größe");
    EXPECT_EQ(only(binaryAscii(std::string("a\0b", 3)))->string(), std::string("a\0b", 3));
    EXPECT_EQ(only(binaryData(std::string("\0\xFF", 2)))->data(), std::string("\0\xFF", 2));
}

TEST(BinaryPropertyList, RepairsTextsThatAreNone)
{
    EXPECT_EQ(only(binaryUtf16(std::u16string{ 'a', 0xD800 }))->string(), "a\uFFFD") << "a high half at the end";
    EXPECT_EQ(only(binaryUtf16(std::u16string{ 0xD800, 'a' }))->string(), "\uFFFDa") << "a high half alone";
    EXPECT_EQ(only(binaryUtf16(std::u16string{ 0xDC00, 'a' }))->string(), "\uFFFDa") << "a low half alone";
    EXPECT_EQ(only(binaryUtf16(std::u16string{ 0xD800, 0xD800, 0xDC00 }))->string(), "\uFFFD\U00010000");
    EXPECT_EQ(only(binaryUtf8("a\xFFz"))->string(), "a\uFFFDz");
    EXPECT_EQ(only(binaryAscii("\xC3\x28"))->string(), "\uFFFD(");
}

TEST(BinaryPropertyList, ReadsConstantsAndUids)
{
    EXPECT_EQ(only("\x09")->boolean(), true);
    EXPECT_EQ(only("\x08")->boolean(), false);
    EXPECT_EQ(only(std::string(1, '\0'))->kind(), Kind::Null);
    EXPECT_EQ(only("\x0F")->kind(), Kind::Null);
    EXPECT_EQ(only('\x80' + bigEndianBytes(7, 1))->unsignedInteger(), 7U);
    EXPECT_EQ(only('\x87' + bigEndianBytes(~std::uint64_t{ 0 }, 8))->unsignedInteger(), ~std::uint64_t{ 0 });
    EXPECT_EQ(only('\x80' + bigEndianBytes(7, 1))->kind(), Kind::Uid);
    EXPECT_FALSE(only('\x88' + bigEndianBytes(7, 9))) << "a UID of nine bytes";
}

TEST(BinaryPropertyList, RefusesObjectsThatNoListHas)
{
    for (const char marker : { '\x01', '\x0A', '\x0C', '\x0D', '\x0E', '\x15', '\x1F', '\x90', '\xE0', '\xF0' })
        EXPECT_FALSE(only(marker + std::string(32, '\0'))) << static_cast<int>(marker);
}

TEST(BinaryPropertyList, KeepsContainersInTheirOrder)
{
    const auto list = PropertyList::parse(
        binaryList({ binaryDictionary({ 1, 2, 3 }, { 4, 5, 6 }), binaryAscii("z"), binaryAscii("a"), binaryAscii("m"),
            binaryArray({ 2, 1 }), binaryArray({ 1, 2 }, 0xB), binaryArray({ 3 }, 0xC) }));
    const auto root = list->root();
    ASSERT_EQ(root.size(), 3U);
    EXPECT_EQ(root.key(0).string(), "z");
    EXPECT_EQ(root.key(2).string(), "m");
    EXPECT_EQ(root.at(0).at(0).string(), "a");
    EXPECT_EQ(root.value("a")->kind(), Kind::OrderedSet);
    EXPECT_EQ(root.value("a")->at(1).string(), "a");
    EXPECT_EQ(root.value("m")->kind(), Kind::Set);
    EXPECT_EQ(root.value("absent"), std::nullopt);
    EXPECT_THROW((void)root.at(3), std::out_of_range);
    EXPECT_THROW((void)root.key(3), std::out_of_range);
    EXPECT_THROW((void)root.value("z")->key(0), std::out_of_range) << "an array has no keys";
}

TEST(BinaryPropertyList, TakesTheFirstOfTwoEqualKeys)
{
    const auto list = PropertyList::parse(binaryList(
        { binaryDictionary({ 1, 1 }, { 2, 3 }), binaryAscii("key"), binaryAscii("one"), binaryAscii("two") }));
    EXPECT_EQ(list->root().size(), 2U);
    EXPECT_EQ(list->root().value("key")->string(), "one");
}

TEST(BinaryPropertyList, TakesATopLevelThatIsNoDictionary)
{
    EXPECT_EQ(only(binaryArray({ 0 }))->kind(), Kind::Array);
    EXPECT_EQ(only(binaryAscii("text"))->value("key"), std::nullopt);
    EXPECT_EQ(only(binaryAscii("text"))->size(), 0U);
    EXPECT_THROW((void)only(binaryAscii("text"))->at(0), std::out_of_range);
    const auto second = PropertyList::parse(binaryList({ binaryAscii("one"), binaryAscii("two") }, { .top = 1 }));
    EXPECT_EQ(second->root().string(), "two");
}

TEST(BinaryPropertyList, ValuesOutliveTheList)
{
    const auto value = PropertyList::parse(binaryList({ binaryAscii("text") }))->root();
    EXPECT_EQ(value.string(), "text");
}

} // namespace Korvane
