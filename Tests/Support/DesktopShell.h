// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// A shell in which the desktop's own tools work on the home and the Trash of a test, on a session bus of their own.
class DesktopShell {
public:
    /// Keeps its scripts and its runtime folder in `folder`, which must exist.
    DesktopShell(Environment environment, std::filesystem::path folder);

    /// Whether there is a program of this name.
    static bool hasTool(const std::string& name);

    /// What a shell command prints on standard output, run in the home folder.
    std::string outputOf(const std::string& command) const;

private:
    Environment m_environment;
    std::filesystem::path m_folder;
};

} // namespace Korvane
