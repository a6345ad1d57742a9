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
    /// Halves are rounded away from zero. UTF-8. Any thread.
    static std::string string(std::int64_t byteCount);

    /// The same in the locale of this name ("de_DE", "fr"); an unknown one gives the root locale's forms.
    ///
    /// English writes "KB", and "Zero KB" in words, where the Unicode locale data say "kB"; other languages have their
    /// own unit and the figure 0.
    static std::string string(std::int64_t byteCount, const std::string& localeName);
};

} // namespace Korvane
