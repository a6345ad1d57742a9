// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// Finds out which applications a user has running, from the kernel's table of processes.
struct LinuxApplications {
    std::filesystem::path processTable; ///< "/proc".
    std::vector<std::filesystem::path> dataFolders; ///< Each may hold "applications"; the more important first.
    std::vector<std::filesystem::path> searchPath; ///< Where programs that are named without a path are found.
    std::uint32_t user = 0;

    /// The places of this process: XDG_DATA_HOME as `dataHome`, XDG_DATA_DIRS, PATH, and this process's user.
    static LinuxApplications ofThisProcess(const std::filesystem::path& dataHome);

    /// Their ids, sorted, each once: from application units and sandboxes, from the bundles that programs lie in, and
    /// from the programs that installed desktop entries start, with the window class of those. Interpreters' names are
    /// never among them. Processes that go away meanwhile are left out. Any thread.
    std::vector<std::string> runningIdentifiers() const;
};

} // namespace Korvane
