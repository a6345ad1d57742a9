// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace Korvane {

/// A set of names or paths that grows in small steps. One table of a million strings takes a third of a second when it
/// makes room for more, which is longer than the answer to a cancel may take; this one is many tables.
class NameSet {
public:
    /// Adds a name; false when it was there already.
    bool insert(std::string_view name)
    {
        const bool isNew = m_tables[std::hash<std::string_view>{}(name) % m_tables.size()].emplace(name).second;
        m_size += isNew ? 1 : 0;
        return isNew;
    }

    std::size_t size() const noexcept { return m_size; }

private:
    // A prime number other than those by which the tables themselves divide.
    std::array<std::unordered_set<std::string>, 61> m_tables;
    std::size_t m_size = 0;
};

} // namespace Korvane
