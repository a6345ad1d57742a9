// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/Mutator.h"

#include "Tests/Fuzz/BinaryListBuilder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Korvane {

Mutator::Mutator(std::vector<std::string> seeds, std::uint64_t number)
    : m_seeds(std::move(seeds))
    , m_random(number)
{
}

/// The library's own distributions differ from one to the next; a remainder does not.
std::size_t Mutator::below(std::size_t bound) { return bound == 0 ? 0 : static_cast<std::size_t>(m_random() % bound); }

/// A number at which counts and offsets go wrong.
std::uint64_t Mutator::oddNumber()
{
    static constexpr std::array<std::uint64_t, 12> numbers{ 0, 1, 7, 9, 0x7F, 0xFF, 0xFFFF, 0xFFFFFFFF,
        std::uint64_t{ 1 } << 40U, 0x7FFFFFFFFFFFFFFF, 0x8000000000000000, ~std::uint64_t{ 0 } };
    return numbers[below(numbers.size())] + below(3) - 1;
}

std::string Mutator::next()
{
    auto input = m_seeds[below(m_seeds.size())];
    for (auto changes = 1 + below(4); changes > 0; --changes)
        change(input);
    return input;
}

void Mutator::change(std::string& input)
{
    const auto position = below(input.size());
    const auto length = std::min(1 + below(16), input.size() - position);
    const auto size = std::size_t{ 1 } << below(4);
    switch (below(8)) {
    case 0:
        if (!input.empty())
            input[position] = static_cast<char>(input[position] ^ static_cast<char>(1U << below(8)));
        break;
    case 1:
        input.replace(position, std::min<std::size_t>(1, length), bigEndianBytes(oddNumber(), 1));
        break;
    case 2:
        input.replace(position, std::min(size, input.size() - position), bigEndianBytes(oddNumber(), size));
        break;
    case 3:
        input.erase(position, length);
        break;
    case 4:
        input.insert(position, input.substr(below(input.size()), length));
        break;
    case 5:
        input.resize(position);
        break;
    case 6: { // The numbers of the trailer.
        const auto field = std::min<std::size_t>(input.size(), 8 * (1 + below(4)));
        input.replace(input.size() - field, std::min<std::size_t>(field, 8), bigEndianBytes(oddNumber(), 8));
        break;
    }
    default: {
        const auto& other = m_seeds[below(m_seeds.size())];
        input = input.substr(0, position) + other.substr(below(other.size()));
    }
    }
}

} // namespace Korvane
