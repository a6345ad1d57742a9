// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What a desktop entry says about its application and how that is started (freedesktop.org Desktop Entry,
/// version 1.5).
struct DesktopEntry {
    std::vector<std::string> arguments; ///< `Exec` taken apart, without its field codes; empty when it says nothing.
    std::string startupWmClass;
    bool isHidden = false; ///< The user has removed it.
    std::string name; ///< In no particular language.
    std::string icon; ///< A name to be looked up, or an absolute path.

    /// The arguments without a leading "env" and what that sets: "env NAME=value program" starts the program.
    std::vector<std::string> command() const;
};

/// Reads the text of a ".desktop" file; nothing when it is no entry of an application. Never throws for its contents.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text);

/// Reads a ".desktop" file of at most a megabyte; nothing when that cannot be done.
std::optional<DesktopEntry> readDesktopEntry(const std::filesystem::path& file);

/// Called for each file with its id, which is its path below the folder with dashes for slashes, without ".desktop".
using DesktopEntryVisitor = std::function<void(const std::string& id, const std::filesystem::path& file)>;

/// Visits the ".desktop" files in a folder of entries and the folders in it; what cannot be read is left out.
void visitDesktopEntries(const std::filesystem::path& folder, const DesktopEntryVisitor& visit);

} // namespace Korvane
