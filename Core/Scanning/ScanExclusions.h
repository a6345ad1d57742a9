// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace Korvane {

/// Folders that a walk over a whole home never enters: package managers', build output and version control.
class ScanExclusions {
public:
    ScanExclusions() = delete;

    /// The 15 names, exact and case-sensitive.
    static const std::unordered_set<std::string>& dependencyDirNames();
    /// Whether a folder of exactly this name (last path component) is passed over.
    static bool shouldSkip(std::string_view directoryName);
};

} // namespace Korvane
