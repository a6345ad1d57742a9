// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace Korvane {

/// Ends the program with a message on standard error: a byte total that does not fit 64 bits means
/// that some count is wrong, and nothing may be removed on the strength of a wrong count.
[[noreturn]] void stopOnOverflow() noexcept;

/// The sum of two signed 64-bit counts; stops the program when it does not fit.
inline std::int64_t checkedAdd(std::int64_t left, std::int64_t right) noexcept
{
    std::int64_t sum = 0;
    if (__builtin_add_overflow(left, right, &sum))
        stopOnOverflow();
    return sum;
}

} // namespace Korvane
