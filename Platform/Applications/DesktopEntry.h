// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What a desktop entry says about how its application is started (freedesktop.org Desktop Entry, version 1.5).
struct DesktopEntry {
    std::vector<std::string> arguments; ///< `Exec` taken apart, without its field codes; empty when it says nothing.
    std::string startupWmClass;
    bool isHidden = false; ///< The user has removed it.
};

/// Reads the text of a ".desktop" file; nothing when it is no entry of an application. Never throws for its contents.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text);

} // namespace Korvane
