// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/ChildProcess.h"
#include "Platform/Environment.h"
#include "Platform/HostApplication.h"

#include <chrono>
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
    /// How long the tool may take. It lists in a second even where hundreds are installed, but removes a large one from
    /// a slow disk in minutes; past these it hangs.
    struct TimeLimits {
        std::chrono::milliseconds list = std::chrono::seconds(30);
        std::chrono::milliseconds uninstall = std::chrono::minutes(10);
    };

    /// The tool is the first program named "flatpak" in the folders; without one nothing is installed.
    Flatpaks(const Environment& environment, const std::vector<std::filesystem::path>& programFolders);
    Flatpaks(const Environment& environment, const std::vector<std::filesystem::path>& programFolders,
        TimeLimits timeLimits);

    /// What the tool lists, sorted by id, each once, with a folder in the user's installation. Empty when there is no
    /// installation, or the tool fails or hangs. Throws CancellationError.
    std::vector<HostApplication> installed(const Cancellation& cancellation) const;

    /// Has the tool remove an application for good. Throws FileError on its path, with the tool's text when that failed
    /// and std::errc::timed_out when it hung, and CancellationError.
    void uninstall(const HostApplication& application, const Cancellation& cancellation) const;

private:
    ChildProcess call(std::vector<std::string> arguments, std::chrono::milliseconds timeLimit) const;
    std::vector<HostApplication> listed(const std::string& output) const;
    std::filesystem::path folderOf(std::string_view identifier) const;

    std::filesystem::path m_tool; ///< Empty when there is none.
    std::filesystem::path m_installation;
    std::vector<std::pair<std::string, std::string>> m_variables; ///< So that the tool works in the same places.
    TimeLimits m_timeLimits;
};

} // namespace Korvane
