// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanProgress.h"
#include "Core/Uninstalling/InstalledApp.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// Lists the applications that are installed, each with the files that it has left in the user's folders.
///
/// Leftovers belong to an application by its identifier alone, never by its name. A value without parameters.
class AppInventoryScanner {
public:
    /// The applications in the folder of all users and then in the user's own, with what they and their leftovers
    /// occupy; this program is never among them. After these the host's other kinds. Largest total first; equal
    /// totals in the order of discovery. Off the main thread; reports progress on the calling thread, at most once
    /// in 0.1 s. Throws CancellationError when cancelled, and nothing else for what it cannot read.
    std::vector<InstalledApp> scanApps(
        const Host& host, const ProgressHandler& progress, const Cancellation& cancellation = {}) const;

private:
    class Scan;

    /// What is there of the seven places where an application keeps the user's data under its identifier, in their
    /// order. Nothing for an identifier that is no file name and so would lead out of them.
    static std::vector<std::filesystem::path> leftoverCandidates(const std::string& bundleID, const FileManager& files);

    /// The heading for a leftover, by its whole path; the first that fits.
    static std::string leftoverCategory(const std::filesystem::path& url);
};

} // namespace Korvane
