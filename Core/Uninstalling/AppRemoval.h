// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"
#include "Core/Uninstalling/InstalledApp.h"
#include "Platform/Host.h"

#include <vector>

namespace Korvane {

/// Takes an application away with everything it left behind, so that it can be put back from the Trash.
class AppRemoval {
public:
    AppRemoval() = delete;

    /// What goes with `app`, in the order in which it goes: the application itself, then its leftovers.
    static std::vector<ScanItem> items(const InstalledApp& app);

    /// Moves the application and its leftovers to the Trash, whatever the user's preference for cleaning is, and never
    /// deletes. A Flatpak goes by its own tool, for good, and its leftovers only after that was done.
    ///
    /// Refused as a whole: a bundle that is no direct child of one of the two application folders. Never throws for an
    /// item: what could not be moved is in the result. Off the main thread; not cancelled.
    static Cleaner::Result remove(const InstalledApp& app, const Host& host);
};

} // namespace Korvane
