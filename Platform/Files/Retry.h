// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cerrno>

namespace Korvane {

/// Calls a system function until no signal interrupts it; what it returned, or its errno, negated, when that was -1.
template <typename Call> auto retryInterrupted(const Call& call) -> decltype(call())
{
    for (;;) {
        const auto result = call();
        if (result != -1)
            return result;
        if (errno != EINTR)
            return static_cast<decltype(call())>(-errno);
    }
}

/// The same for a function that only succeeds or fails: 0, or the errno.
template <typename Call> int errorOf(const Call& call)
{
    const auto result = retryInterrupted(call);
    return result < 0 ? static_cast<int>(-result) : 0;
}

} // namespace Korvane
