// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace Korvane {

/// A random identity of 128 bits (RFC 4122, version 4).
struct Uuid {
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    /// A fresh random identity. Any thread.
    static Uuid random();

    /// The usual text form, lower case, 36 characters.
    std::string toString() const;

    bool operator==(const Uuid&) const = default;
};

} // namespace Korvane

template <> struct std::hash<Korvane::Uuid> {
    std::size_t operator()(const Korvane::Uuid& uuid) const noexcept
    {
        return static_cast<std::size_t>(uuid.high ^ (uuid.low * 0x9E3779B97F4A7C15ULL));
    }
};
