// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/BinaryPropertyList.h"

#include "Platform/PropertyLists/RepairedText.h"

#include <bit>
#include <limits>

namespace Korvane {

namespace {

using Kind = PropertyListStore::Kind;
using Reach = PropertyListStore::Reach;

constexpr std::string_view signature = "bplist0";
constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;

/// The number in at most eight bytes, the most significant first.
std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = (number << 8U) | static_cast<unsigned char>(byte);
    return number;
}

/// Reads one binary property list, once.
class BinaryReader {
public:
    explicit BinaryReader(std::string_view bytes)
        : m_bytes(bytes)
    {
    }

    std::optional<PropertyListStore> read();

private:
    bool readTrailer();
    bool readObject();
    bool readConstant(unsigned kind);
    bool readInteger(unsigned exponent);
    bool readReal(unsigned exponent);
    bool readDate(unsigned exponent);
    bool readText(unsigned type, unsigned nibble);
    bool readUid(unsigned nibble);
    bool readContainer(Kind kind, unsigned nibble);
    std::optional<std::string_view> take(std::uint64_t count, std::size_t unit);
    std::optional<std::uint64_t> takeCount(unsigned nibble);

    std::string_view m_bytes;
    std::string_view m_objects; // with the header, so that offsets are positions
    std::string_view m_offsets;
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    std::uint64_t m_objectCount = 0;
    std::size_t m_position = 0;
    std::size_t m_allowance = 0; // bytes that objects may still take
    PropertyListStore m_store;
};

bool BinaryReader::readTrailer()
{
    if (m_bytes.size() < headerSize + trailerSize)
        return false;
    const auto body = m_bytes.substr(0, m_bytes.size() - trailerSize);
    const auto trailer = m_bytes.substr(body.size());
    m_offsetSize = static_cast<unsigned char>(trailer[6]);
    m_referenceSize = static_cast<unsigned char>(trailer[7]);
    m_objectCount = bigEndian(trailer.substr(8, 8));
    const auto top = bigEndian(trailer.substr(16, 8));
    const auto table = bigEndian(trailer.substr(24, 8));
    constexpr auto widest = sizeof(std::uint64_t);
    if (m_offsetSize < 1 || m_offsetSize > widest || m_referenceSize < 1 || m_referenceSize > widest)
        return false;
    if (table <= headerSize || table > body.size() || top >= m_objectCount)
        return false;
    m_objects = body.substr(0, table);
    m_offsets = body.substr(table);
    if (m_objectCount > m_offsets.size() / m_offsetSize)
        return false;
    m_allowance = m_objects.size() - headerSize;
    m_store.root = static_cast<PropertyListStore::Index>(top);
    return true;
}

std::optional<PropertyListStore> BinaryReader::read()
{
    if (!readTrailer())
        return std::nullopt;
    for (std::uint64_t object = 0; object < m_objectCount; ++object) {
        const auto offset = bigEndian(m_offsets.substr(object * m_offsetSize, m_offsetSize));
        if (offset < headerSize || offset >= m_objects.size())
            return std::nullopt;
        m_position = offset;
        if (!readObject())
            return std::nullopt;
    }
    return std::move(m_store);
}

/// The next bytes of the object; nothing when it would leave the objects' part of the file.
std::optional<std::string_view> BinaryReader::take(std::uint64_t count, std::size_t unit)
{
    const auto remaining = std::min(m_objects.size() - m_position, m_allowance);
    if (count > remaining / unit)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(count) * unit;
    const auto bytes = m_objects.substr(m_position, size);
    m_position += size;
    m_allowance -= size;
    return bytes;
}

/// A small count stands in the marker itself, a larger one in an integer behind it.
std::optional<std::uint64_t> BinaryReader::takeCount(unsigned nibble)
{
    if (nibble != 0xF)
        return nibble;
    const auto marker = take(1, 1);
    if (!marker || (marker->front() & 0xFC) != 0x10)
        return std::nullopt;
    const auto number = take(1, std::size_t{ 1 } << (marker->front() & 0x3));
    return number ? std::optional(bigEndian(*number)) : std::nullopt;
}

bool BinaryReader::readObject()
{
    const auto marker = take(1, 1);
    if (!marker)
        return false;
    const unsigned type = static_cast<unsigned char>(marker->front()) >> 4U;
    const unsigned nibble = static_cast<unsigned char>(marker->front()) & 0xFU;
    switch (type) {
    case 0x0:
        return readConstant(nibble);
    case 0x1:
        return readInteger(nibble);
    case 0x2:
        return readReal(nibble);
    case 0x3:
        return readDate(nibble);
    case 0x4:
    case 0x5:
    case 0x6:
    case 0x7:
        return readText(type, nibble);
    case 0x8:
        return readUid(nibble);
    case 0xA:
        return readContainer(Kind::Array, nibble);
    case 0xB:
        return readContainer(Kind::OrderedSet, nibble);
    case 0xC:
        return readContainer(Kind::Set, nibble);
    case 0xD:
        return readContainer(Kind::Dictionary, nibble);
    default:
        return false;
    }
}

bool BinaryReader::readConstant(unsigned kind)
{
    switch (kind) {
    case 0x0:
    case 0xF: // fill
        m_store.addNull();
        return true;
    case 0x8:
    case 0x9:
        m_store.addBoolean(kind == 0x9);
        return true;
    default:
        return false;
    }
}

bool BinaryReader::readInteger(unsigned exponent)
{
    if (exponent > 4)
        return false;
    const auto bytes = take(1, std::size_t{ 1 } << exponent);
    if (!bytes)
        return false;
    // Numbers of eight bytes are signed, shorter ones not, longer ones are how a large unsigned one is written.
    if (exponent < 4) {
        m_store.addInteger(bigEndian(*bytes), Reach::Signed);
        return true;
    }
    const auto high = bigEndian(bytes->substr(0, 8));
    const auto low = bigEndian(bytes->substr(8));
    const bool isLowNegative = std::bit_cast<std::int64_t>(low) < 0;
    if (high == 0)
        m_store.addInteger(low, isLowNegative ? Reach::Unsigned : Reach::Signed);
    else
        m_store.addInteger(low, high == ~std::uint64_t{ 0 } && isLowNegative ? Reach::Signed : Reach::Wider);
    return true;
}

bool BinaryReader::readReal(unsigned exponent)
{
    static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);
    if (exponent != 2 && exponent != 3)
        return false;
    const auto bytes = take(1, std::size_t{ 1 } << exponent);
    if (!bytes)
        return false;
    const auto bits = bigEndian(*bytes);
    m_store.addReal(
        exponent == 2 ? std::bit_cast<float>(static_cast<std::uint32_t>(bits)) : std::bit_cast<double>(bits));
    return true;
}

bool BinaryReader::readDate(unsigned exponent)
{
    const auto bytes = exponent == 3 ? take(8, 1) : std::nullopt;
    if (!bytes)
        return false;
    m_store.addDate(std::bit_cast<double>(bigEndian(*bytes)));
    return true;
}

bool BinaryReader::readText(unsigned type, unsigned nibble)
{
    const auto count = takeCount(nibble);
    const auto bytes = count ? take(*count, type == 0x6 ? 2 : 1) : std::nullopt;
    if (!bytes)
        return false;
    if (type == 0x4)
        m_store.addData(*bytes);
    else if (type == 0x6)
        m_store.addString(utf8FromUtf16(*bytes, std::endian::big));
    else // 0x5 is ASCII, of which UTF-8 is the sound extension; some write it so.
        m_store.addString(repairedUtf8(*bytes));
    return true;
}

bool BinaryReader::readUid(unsigned nibble)
{
    const auto bytes = nibble < sizeof(std::uint64_t) ? take(nibble + 1, 1) : std::nullopt;
    if (!bytes)
        return false;
    m_store.addUid(bigEndian(*bytes));
    return true;
}

bool BinaryReader::readContainer(Kind kind, unsigned nibble)
{
    const auto count = takeCount(nibble);
    const auto bytes = count ? take(*count, m_referenceSize * (kind == Kind::Dictionary ? 2 : 1)) : std::nullopt;
    if (!bytes)
        return false;
    const auto first = m_store.references.size();
    for (std::size_t position = 0; position < bytes->size(); position += m_referenceSize) {
        const auto reference = bigEndian(bytes->substr(position, m_referenceSize));
        if (reference >= m_objectCount)
            return false;
        m_store.references.push_back(static_cast<PropertyListStore::Index>(reference));
    }
    m_store.addContainer(kind, static_cast<std::size_t>(*count), first);
    return true;
}

} // namespace

bool isBinaryPropertyList(std::string_view bytes) noexcept { return bytes.starts_with(signature); }

std::optional<PropertyListStore> parseBinaryPropertyList(std::string_view bytes) { return BinaryReader(bytes).read(); }

} // namespace Korvane
