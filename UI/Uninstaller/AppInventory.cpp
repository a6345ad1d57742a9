// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/AppInventory.h"

namespace Korvane {

std::optional<AppInventory> AppInventory::of(
    const Scan& scan, const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) noexcept
{
    try {
        AppInventory inventory{ scan(host, progress, cancellation), RunningApps(*host.workspace) };
        cancellation.throwIfCancelled();
        return inventory;
    } catch (...) {
        return std::nullopt;
    }
}

} // namespace Korvane
