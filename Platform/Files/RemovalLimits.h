// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

namespace Korvane {

/// What one removal may take of the machine.
struct RemovalLimits {
    std::size_t workers; ///< Threads, the caller's among them, where processors are the bound.
    std::size_t waitingWorkers; ///< The same where a device is, which then always has something to do.
    std::size_t openFolders; ///< Descriptors kept open, beside a few that each thread has in use.

    /// By the processors of this machine and by how many descriptors this process may have.
    static RemovalLimits current();
};

} // namespace Korvane
