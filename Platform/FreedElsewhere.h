// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <utility>

namespace Korvane {

/// Lets go of what may be the last reference to something on a thread of the pool of readers. Any thread.
void freeElsewhere(std::shared_ptr<void> value);

/// A list or set of work that can be cancelled: when it goes with very many elements in it, another thread takes them
/// apart, which for a million paths lasts longer than the answer to a cancel may.
template <typename Container> class FreedElsewhere {
public:
    /// How many elements are taken apart in about a millisecond.
    static constexpr std::size_t most = 10'000;

    FreedElsewhere() = default;
    explicit FreedElsewhere(Container contents)
        : m_contents(std::move(contents))
    {
    }
    ~FreedElsewhere()
    {
        if (m_contents.size() > most)
            freeElsewhere(std::make_shared<Container>(std::move(m_contents)));
    }
    FreedElsewhere(const FreedElsewhere&) = delete;
    FreedElsewhere& operator=(const FreedElsewhere&) = delete;

    Container& operator*() noexcept { return m_contents; }
    Container* operator->() noexcept { return &m_contents; }

private:
    Container m_contents;
};

} // namespace Korvane
