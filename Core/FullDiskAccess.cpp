// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/FullDiskAccess.h"

#include "Platform/FileError.h"

#include <array>
#include <filesystem>

namespace Korvane {

namespace {

/// The pane of System Settings that lists the applications with Full Disk Access.
constexpr const char* settingsUrl = "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

bool canBeListed(const FileManager& files, const std::filesystem::path& folder)
{
    try {
        (void)files.contentsOfDirectory(folder);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace

bool FullDiskAccess::isGranted(const FileManager& files)
{
    const auto home = files.homeDirectoryForCurrentUser();
    const std::array probes{ home / "Library/Safari", home / "Library/Application Support/com.apple.TCC" };
    bool anyExists = false;
    for (const auto& probe : probes) {
        if (!files.fileExists(probe))
            continue;
        if (canBeListed(files, probe))
            return true;
        anyExists = true;
    }
    // With nothing that the permission would open up, asking for it would only nag.
    return !anyExists;
}

void FullDiskAccess::openSettings(const Workspace& workspace)
{
    // Nobody waits for an answer: where there is no such pane, nothing happens.
    (void)workspace.open(settingsUrl);
}

} // namespace Korvane
