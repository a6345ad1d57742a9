// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Environment.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace Korvane {

/// Whether a listing shows entries that the platform hides (on Linux: names that begin with ".").
enum class HiddenFiles { Included, Skipped };

/// The user's files, as the platform gives them: places, listings, existence, and the two ways of removing.
///
/// Any thread may call any member. Members that fail throw FileError. Paths are bytes and may be longer than PATH_MAX.
class FileManager {
public:
    virtual ~FileManager() = default;

    virtual std::filesystem::path homeDirectoryForCurrentUser() const = 0;
    virtual std::filesystem::path temporaryDirectory() const = 0;

    /// Caches that this host keeps besides "Library/Caches"; each child is one cache. Empty on macOS.
    virtual std::vector<std::filesystem::path> additionalCacheDirectories() const = 0;

    /// Trash folders that this host keeps besides ".Trash" in the home folder. Empty on macOS.
    virtual std::vector<std::filesystem::path> additionalTrashDirectories() const = 0;

    /// Whether something exists at `path`; a link counts when what it names exists.
    virtual bool fileExists(const std::filesystem::path& path) const = 0;

    /// The direct children of a folder, as full paths, in the order in which the file system lists them.
    /// Throws CancellationError when cancelled.
    virtual std::vector<std::filesystem::path> contentsOfDirectory(const std::filesystem::path& folder,
        HiddenFiles hidden = HiddenFiles::Included, const Cancellation& cancellation = {}) const = 0;

    /// Deletes a file, a link or a whole folder tree for good.
    ///
    /// Links are removed, never followed; other volumes mounted inside are never entered. Refused, each with
    /// its own error: "/", the home folder and what contains it, a mount point, a sticky folder shared by all
    /// users, an empty or a relative path.
    virtual void removeItem(const std::filesystem::path& path) = 0;

    /// Moves an item to the Trash of its volume and returns where it lies now. Never deletes, never copies.
    ///
    /// On failure the item is where it was. Refuses what removeItem refuses.
    virtual std::filesystem::path trashItem(const std::filesystem::path& path) = 0;

    /// Begins a run of moves to the Trash: until what is returned is gone, folders that its items share stay open in
    /// place of being opened for each. Each move does and refuses what it does without. A run begun within another is that one. May
    /// be null.
    virtual std::shared_ptr<void> beginTrashing() { return nullptr; }

    /// Deletes for good what lies in one of the Trash folders; the folder itself stays.
    ///
    /// Stops at the first entry that cannot be deleted, with that entry's error; what was deleted stays deleted.
    /// A Trash that cannot be listed counts as empty. Refused: ".Trash" in the home folder or one of
    /// additionalTrashDirectories() is all that is ever emptied, and neither when a link lies in its place.
    virtual void emptyTrash(const std::filesystem::path& trash) = 0;
};

/// The file manager of this machine, working in the places of `environment`.
std::shared_ptr<FileManager> makeFileManager(const Environment& environment);

} // namespace Korvane
