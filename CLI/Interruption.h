// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

namespace Korvane {

/// Turns Ctrl-C, and the signals by which a terminal or a session ends, into a cancellation.
///
/// A signal that was ignored when the program started stays ignored. Writing to a pipe that nobody reads becomes an
/// error instead of the end of the program. One object, made first in `main`.
class Interruption {
public:
    Interruption();

    /// Cancelled by the first of the signals.
    const Cancellation& cancellation() const { return m_cancellation; }

private:
    Cancellation m_cancellation;
};

} // namespace Korvane
