// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace Korvane {

/// Byte counts as the platform's file style writes them.
class ByteCountFormatter {
public:
    /// Decimal units; bytes and KB without decimals, MB with one, GB and above with two, trailing zeros dropped,
    /// "Zero KB" for 0, "1 byte", the next unit when rounding reaches 1000; numbers and units in the user's locale.
    /// UTF-8. Any thread.
    static std::string string(std::int64_t byteCount);
};

} // namespace Korvane
