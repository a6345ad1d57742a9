// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Environment.h"
#include "Platform/HostApplication.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane {

/// Whether a text has the form of a Flatpak application id: elements of letters, digits, "_" and "-" with dots between,
/// at least two of them, at most 255 bytes, and no "-" in front, so that it is never taken for an option or a path.
bool isFlatpakIdentifier(std::string_view text);

/// The Flatpaks that one user has installed for themselves, through the Flatpak tool.
class Flatpaks {
public:
    /// The tool is the first program named "flatpak" in the folders; without one nothing is installed.
    Flatpaks(const Environment& environment, const std::vector<std::filesystem::path>& programFolders);

    /// What the tool lists, sorted by id, each once, with a folder in the user's installation. Empty when there is no
    /// installation, or the tool fails. Throws CancellationError.
    std::vector<HostApplication> installed(const Cancellation& cancellation) const;

    /// Has the tool remove an application for good. Throws FileError on its path, with the tool's text when that
    /// failed, and CancellationError.
    void uninstall(const HostApplication& application, const Cancellation& cancellation) const;

private:
    std::vector<HostApplication> listed(const std::string& output) const;
    std::filesystem::path folderOf(std::string_view identifier) const;

    std::filesystem::path m_tool; ///< Empty when there is none.
    std::filesystem::path m_installation;
    std::vector<std::pair<std::string, std::string>> m_variables; ///< So that the tool works in the same places.
};

} // namespace Korvane
