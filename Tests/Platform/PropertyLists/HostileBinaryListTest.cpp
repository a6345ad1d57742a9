// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"
#include "Platform/PropertyLists/BinaryPropertyList.h"
#include "Tests/Fuzz/BinaryListBuilder.h"
#include "Tests/Fuzz/PropertyListSeeds.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

bool isRead(const std::string& bytes) { return PropertyList::parse(bytes).has_value(); }

/// The list of one object, with the count in its marker replaced by a number of eight bytes.
std::string claiming(unsigned type, std::uint64_t count)
{
    return binaryList({ static_cast<char>(type << 4U | 0xFU) + binaryInteger(count, 3) + std::string(64, 'x') });
}

} // namespace

// What is cut off is the trailer, without which the numbers of the table's end stand for it.
TEST(HostileBinaryList, EveryPrefixIsRefused)
{
    for (const auto& list : { binaryList({ binaryDictionary({ 1 }, { 2 }), binaryAscii("key"), binaryUtf16(u"value") }),
             sharedReferenceList(40), binaryList({ binaryInteger(1, 4) }, { .offsetSize = 8, .referenceSize = 8 }) }) {
        ASSERT_TRUE(isRead(list));
        for (std::size_t length = 0; length < list.size(); ++length)
            EXPECT_FALSE(isRead(list.substr(0, length))) << length << " of " << list.size();
    }
}

TEST(HostileBinaryList, OnlyASignatureIsNoList)
{
    EXPECT_FALSE(isRead("bplist00"));
    EXPECT_FALSE(isRead("bplist00" + std::string(32, '\0')));
    EXPECT_FALSE(isRead("bplist00" + std::string(32, '\xFF')));
    EXPECT_FALSE(isRead(binaryList({ binaryAscii("a") }, { .signature = "bplist15" })));
    EXPECT_TRUE(isRead(binaryList({ binaryAscii("a") }, { .signature = "bplist01" })));
}

TEST(HostileBinaryList, ClaimedCountsAreHeldAgainstTheFile)
{
    for (const unsigned type : { 0x4U, 0x5U, 0x6U, 0x7U, 0xAU, 0xBU, 0xCU, 0xDU }) {
        for (const auto count : { std::uint64_t{ 1 } << 40U, std::uint64_t{ 65 }, std::uint64_t{ 1 } << 63U,
                 ~std::uint64_t{ 0 }, (~std::uint64_t{ 0 } >> 1U) + 2, ~std::uint64_t{ 0 } / 4 + 1 })
            EXPECT_FALSE(isRead(claiming(type, count))) << type << ' ' << count;
    }
    EXPECT_TRUE(isRead(claiming(0x5, 64)));
    EXPECT_FALSE(isRead(binaryList({ "\x5F" })));
    EXPECT_FALSE(isRead(binaryList({ '\x5F' + binaryAscii("count") }))) << "a count that is a text";
    EXPECT_FALSE(isRead(binaryList({ '\x5F' + binaryInteger(1, 4) + "x" }))) << "a count of sixteen bytes";
}

TEST(HostileBinaryList, TrailersAreHeldAgainstTheFile)
{
    const std::vector<std::string> objects{ binaryArray({ 1 }), binaryAscii("a") };
    ASSERT_TRUE(isRead(binaryList(objects)));
    for (const std::size_t size : { 0, 9, 255 }) {
        EXPECT_FALSE(isRead(binaryList(objects, { .referenceSize = size }))) << size;
        auto odd = binaryList(objects);
        odd[odd.size() - 26] = static_cast<char>(size);
        EXPECT_FALSE(isRead(odd)) << "offsets of " << size;
    }
    EXPECT_FALSE(isRead(binaryList(objects, { .top = 2 })));
    EXPECT_FALSE(isRead(binaryList(objects, { .top = ~std::uint64_t{ 0 } })));
    for (const auto count : { std::uint64_t{ 0 }, std::uint64_t{ 3 }, std::uint64_t{ 1 } << 40U,
             std::uint64_t{ 1 } << 63U, ~std::uint64_t{ 0 }, ~std::uint64_t{ 0 } / 2 + 2 })
        EXPECT_FALSE(isRead(binaryList(objects, { .objectCount = count }))) << count;
    for (const auto offset :
        { std::uint64_t{ 0 }, std::uint64_t{ 8 }, std::uint64_t{ 1 } << 40U, ~std::uint64_t{ 0 }, std::uint64_t{ 17 } })
        EXPECT_FALSE(isRead(binaryList(objects, { .tableOffset = offset }))) << offset;
}

TEST(HostileBinaryList, OffsetsStayWithinTheObjects)
{
    const auto list = binaryList({ binaryAscii("abc") });
    const auto table = list.size() - 32 - 2;
    for (const std::size_t offset :
        { std::size_t{ 0 }, std::size_t{ 7 }, table, table + 1, list.size(), std::size_t{ 0xFFFF } })
        EXPECT_FALSE(isRead(std::string(list).replace(table, 2, bigEndianBytes(offset, 2)))) << offset;
}

TEST(HostileBinaryList, ReferencesStayWithinTheTable)
{
    EXPECT_FALSE(isRead(binaryList({ binaryArray({ 1 }) })));
    EXPECT_FALSE(isRead(binaryList({ binaryDictionary({ 0 }, { 0xFFFF }) })));
    const auto wide = binaryArray({ ~std::uint64_t{ 0 } }, 0xA, 8);
    EXPECT_FALSE(isRead(binaryList({ wide }, { .referenceSize = 8 })));
}

TEST(HostileBinaryList, AValueMayHoldItself)
{
    const auto list = PropertyList::parse(binaryList({ binaryDictionary({ 1 }, { 0 }), binaryAscii("self") }));
    ASSERT_TRUE(list);
    auto value = list->root();
    for (int step = 0; step < 1000; ++step)
        value = *value.value("self");
    EXPECT_EQ(value.size(), 1U);
    EXPECT_EQ(list->valueCount(), 2U);
    EXPECT_EQ(PropertyList::parse(binaryList({ binaryDictionary({ 0 }, { 0 }) }))->root().key(0).size(), 1U);
}

// Expanded, these would be 2^40 leaves.
TEST(HostileBinaryList, SharedValuesStayShared)
{
    const auto bytes = sharedReferenceList(40);
    const auto store = parseBinaryPropertyList(bytes);
    ASSERT_TRUE(store);
    EXPECT_EQ(store->entries.size(), 41U);
    EXPECT_EQ(store->references.size(), 80U);
    EXPECT_EQ(store->text, "leaf");
    auto value = PropertyList::parse(bytes)->root();
    for (int level = 0; level < 40; ++level)
        value = value.at(1);
    EXPECT_EQ(value.string(), "leaf");
}

// Ten thousand offsets that all lead to one array of ten thousand references: a file of 40 kB, a table of 10^8.
TEST(HostileBinaryList, ManyOffsetsOfOneObjectAreRefused)
{
    constexpr std::size_t count = 10'000;
    auto bytes = binaryList({ binaryArray(std::vector<std::uint64_t>(count, 0)) }, { .objectCount = count });
    const auto trailer = bytes.substr(bytes.size() - 32);
    bytes.resize(bytes.size() - 32);
    for (std::size_t copy = 1; copy < count; ++copy)
        bytes += bigEndianBytes(8, 2);
    EXPECT_FALSE(isRead(bytes + trailer));
}

TEST(HostileBinaryList, TheTableGrowsWithTheFileAndNoFaster)
{
    for (const std::size_t count : { 100, 1000, 10'000 }) {
        std::vector<std::string> objects{ binaryArray(std::vector<std::uint64_t>(count, 1)) };
        objects.insert(objects.end(), count, binaryUtf16(u"\uFFFD"));
        const auto bytes = binaryList(objects, { .offsetSize = 3 });
        const auto store = parseBinaryPropertyList(bytes);
        ASSERT_TRUE(store);
        EXPECT_EQ(store->entries.size(), count + 1);
        EXPECT_EQ(store->references.size(), count);
        EXPECT_EQ(store->text.size(), 3 * count);
    }
}

} // namespace Korvane
