// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileManager.h"
#include "Platform/Workspace.h"

namespace Korvane {

/// The permission without which a scan sees only a part of the user's files.
class FullDiskAccess {
public:
    FullDiskAccess() = delete;

    /// Whether the protected folders of the home folder can be listed; true when there are none. No side effects.
    static bool isGranted(const FileManager& files);

    /// Opens the system's settings where the permission is given; nothing happens where there are none.
    static void openSettings(const Workspace& workspace);
};

} // namespace Korvane
