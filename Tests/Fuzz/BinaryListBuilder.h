// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What the header and the trailer of a binary property list say; what is not given is as it should be.
struct BinaryListShape {
    std::size_t offsetSize = 2;
    std::size_t referenceSize = 2;
    std::uint64_t top = 0;
    std::optional<std::uint64_t> objectCount{};
    std::optional<std::uint64_t> tableOffset{};
    std::string signature = "bplist00";
};

/// A binary property list of these objects, each given as its bytes.
std::string binaryList(const std::vector<std::string>& objects, const BinaryListShape& shape = {});

/// The number in so many bytes, the most significant first; only zeros in front of the last eight.
std::string bigEndianBytes(std::uint64_t number, std::size_t size);

/// The beginning of an object of this type (the upper half of its first byte) that counts so many elements.
std::string binaryMarker(unsigned type, std::uint64_t count);

/// An integer of 2^exponent bytes.
std::string binaryInteger(std::uint64_t number, unsigned exponent);
std::string binaryReal(double number);
std::string binaryDate(double seconds);
std::string binaryAscii(std::string_view text);
std::string binaryUtf16(std::u16string_view text);
std::string binaryUtf8(std::string_view text);
std::string binaryData(std::string_view bytes);

/// A container of this type (0xA array, 0xB ordered set, 0xC set) with references of the given size.
std::string binaryArray(const std::vector<std::uint64_t>& references, unsigned type = 0xA, std::size_t size = 2);
std::string binaryDictionary(
    const std::vector<std::uint64_t>& keys, const std::vector<std::uint64_t>& values, std::size_t size = 2);

} // namespace Korvane
