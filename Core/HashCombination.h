// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>

namespace Korvane {

/// The hash of a record, put together from those of its members in their order.
class HashCombination {
public:
    /// Takes in one more member.
    template <typename Member> void add(const Member& member)
    {
        // The golden ratio in 64 bits spreads each member over the whole word.
        m_value ^= std::hash<Member>{}(member) + static_cast<std::size_t>(0x9E3779B97F4A7C15ULL) + (m_value << 6U)
            + (m_value >> 2U);
    }

    std::size_t value() const noexcept { return m_value; }

private:
    std::size_t m_value = 0;
};

} // namespace Korvane
