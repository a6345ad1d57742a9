// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFile.h"
#include "Platform/FileManager.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// Where a file of a device is to arrive on this computer, and the places where "afcclient" might put it instead,
/// because it takes the destination for several words.
class ExportDestination {
public:
    /// `directory` is absolute; `plainDirectory` is the path by which the tool is to find it, which may be the same.
    ExportDestination(
        const IOSMediaFile& file, const std::filesystem::path& directory, const std::filesystem::path& plainDirectory);

    /// What the tool is given behind the file's path on the device.
    const std::filesystem::path& path() const { return m_path; }

    /// Whether a file of this name goes into the folder that it is put behind: it has a name, which is no way out of
    /// the folder and holds neither a slash nor a control character.
    static bool isName(const std::string& name);

    /// Whether nothing lies at any of the places, not even a link that leads nowhere.
    bool isFree() const;

    /// Whether a file that can be whole lies at the destination itself: it has bytes, and its volume has room for more.
    /// The tool says nothing when a full volume takes none.
    bool hasArrived() const;

    /// Moves the files that lie at the places now to the Trash, from where they really are. All were free before, so
    /// that most likely a run of the tool has made them, but somebody else may have since. A file with several names, a
    /// link, a folder or what belongs to another user is not the tool's work and stays. Why one could not be moved, for
    /// a person, UTF-8; nothing when all could.
    std::optional<std::string> trashWhatLiesThere(FileManager& files) const;

private:
    std::filesystem::path m_path;
    std::vector<std::filesystem::path> m_places; ///< The destination first, none by a path lent for the tool.
};

} // namespace Korvane
