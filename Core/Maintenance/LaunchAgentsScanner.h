// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <vector>

namespace Korvane {

/// Lists the background items that the system starts by itself. A value without parameters.
class LaunchAgentsScanner {
public:
    /// The property lists in the user's folder of agents, in that of all users, and in that of daemons; after these
    /// what else this host starts: entries of the session's autostart and enabled units of the user's own manager.
    ///
    /// Sorted by label as the user's language does without regard to case; equal labels stay in the order of
    /// discovery. Every file gives one item, whatever it says: one that cannot be read, is no property list or is
    /// too large (ReadingBudget) has the label of its name and no program. Folders that cannot be listed are left
    /// out. Off the main thread. Throws CancellationError when cancelled, and nothing else.
    std::vector<LaunchAgent> scan(const Host& host, const Cancellation& cancellation = {}) const;

private:
    class Scan;
};

} // namespace Korvane
