// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/BinaryListBuilder.h"

#include <bit>

namespace Korvane {

std::string bigEndianBytes(std::uint64_t number, std::size_t size)
{
    std::string bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8U)
        *byte = static_cast<char>(number & 0xFFU);
    return bytes;
}

std::string binaryMarker(unsigned type, std::uint64_t count)
{
    if (count < 0xF)
        return { static_cast<char>(type << 4U | count) };
    return static_cast<char>(type << 4U | 0xFU) + binaryInteger(count, count < 0x100 ? 0 : 3);
}

std::string binaryInteger(std::uint64_t number, unsigned exponent)
{
    return static_cast<char>(0x10U | exponent) + bigEndianBytes(number, std::size_t{ 1 } << exponent);
}

std::string binaryReal(double number) { return '\x23' + bigEndianBytes(std::bit_cast<std::uint64_t>(number), 8); }

std::string binaryDate(double seconds) { return '\x33' + bigEndianBytes(std::bit_cast<std::uint64_t>(seconds), 8); }

std::string binaryAscii(std::string_view text) { return binaryMarker(0x5, text.size()).append(text); }

std::string binaryUtf16(std::u16string_view text)
{
    auto object = binaryMarker(0x6, text.size());
    for (const char16_t unit : text)
        object += bigEndianBytes(unit, 2);
    return object;
}

std::string binaryUtf8(std::string_view text) { return binaryMarker(0x7, text.size()).append(text); }

std::string binaryData(std::string_view bytes) { return binaryMarker(0x4, bytes.size()).append(bytes); }

std::string binaryArray(const std::vector<std::uint64_t>& references, unsigned type, std::size_t size)
{
    auto object = binaryMarker(type, references.size());
    for (const auto reference : references)
        object += bigEndianBytes(reference, size);
    return object;
}

std::string binaryDictionary(
    const std::vector<std::uint64_t>& keys, const std::vector<std::uint64_t>& values, std::size_t size)
{
    auto object = binaryMarker(0xD, keys.size());
    for (const auto* references : { &keys, &values }) {
        for (const auto reference : *references)
            object += bigEndianBytes(reference, size);
    }
    return object;
}

std::string binaryList(const std::vector<std::string>& objects, const BinaryListShape& shape)
{
    auto bytes = shape.signature;
    std::string table;
    for (const auto& object : objects) {
        table += bigEndianBytes(bytes.size(), shape.offsetSize);
        bytes += object;
    }
    const auto tableOffset = bytes.size();
    bytes += table + std::string(6, '\0');
    bytes += bigEndianBytes(shape.offsetSize, 1) + bigEndianBytes(shape.referenceSize, 1);
    bytes += bigEndianBytes(shape.objectCount.value_or(objects.size()), 8);
    bytes += bigEndianBytes(shape.top, 8);
    return bytes + bigEndianBytes(shape.tableOffset.value_or(tableOffset), 8);
}

} // namespace Korvane
