// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/ChildProcess.h"
#include "Platform/Environment.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// Something that this host starts by itself, besides the property lists of its service manager.
struct BackgroundItem {
    enum class Kind {
        Autostart, ///< A desktop entry (freedesktop.org Desktop Application Autostart, version 0.5).
        SystemdUnit, ///< An enabled unit of the user's own systemd.
    };
    enum class Owner { User, AllUsers };

    std::filesystem::path file;
    std::string label; ///< Its name to be shown, UTF-8.
    std::optional<std::string> program; ///< What it runs, when it says so.
    Kind kind = Kind::Autostart;
    Owner owner = Owner::User;
};

/// Linux: the autostart entries of the user, then those of all users that no entry of the user's of the same name takes
/// the place of, none that is hidden; then the user's own units that are enabled. macOS: none.
///
/// Each kind sorted by file name. A file that is too large to be read has the label of its name and no program; what
/// is no regular file is left out. Off the main thread. Throws CancellationError.
std::vector<BackgroundItem> backgroundItems(const Environment& environment, const Cancellation& cancellation);

/// The folders in which a kind's files of the user lie.
std::vector<std::filesystem::path> ownFolders(BackgroundItem::Kind kind, const Environment& environment);

/// What disables a unit of the user and stops it, with all that were made from it when it is a template; nothing when
/// this host has no program for that.
std::optional<ChildProcess> unitStop(const std::filesystem::path& unit, const Environment& environment);

} // namespace Korvane
