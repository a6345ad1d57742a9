// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <string_view>

namespace Korvane {

/// The streams that the program was started with.
class StandardStreams {
public:
    StandardStreams() = delete;

    /// Puts something harmless in the place of streams that were closed, so that no file opened later is taken for
    /// one of them. Before anything else.
    static void secure();

    /// Writes all of `text` to standard output. Throws std::system_error when it cannot be written, and
    /// CancellationError when cancelled while waiting for the reader.
    static void write(std::string_view text, const Cancellation& cancellation);

    /// Writes a line to standard error, behind the program's name.
    static void complain(std::string_view message);
};

} // namespace Korvane
