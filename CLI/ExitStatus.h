// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// What the program tells the one who started it.
enum class ExitStatus {
    Done = 0,
    Failed = 1, ///< Some items could not be removed, or the report could not be written.
    WrongUse = 2,
    Cancelled = 130, ///< 128 and the number of SIGINT, as shells write it.
};

} // namespace Korvane
