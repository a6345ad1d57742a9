// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"
#include "Platform/Files/EntryStatus.h"
#include "Platform/Files/ProtectedPlaces.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// What lies directly in one folder, held open; false when there is no such folder or it cannot be read.
///
/// Throws FileError when a link lies in the folder's place: what it leads to is somebody else's.
class FolderContents {
public:
    /// What to do when an entry is gone before it is deleted.
    enum class Vanished { Refused, Accepted };

    explicit FolderContents(const std::filesystem::path& folder);

    /// The folder `name` in this one.
    FolderContents inside(const std::string& name) const;

    explicit operator bool() const noexcept { return static_cast<bool>(m_folder); }
    int descriptor() const noexcept { return m_folder.get(); }
    const std::filesystem::path& path() const noexcept { return m_path; }

    /// Names in the order of the file system; what could be read of them before an error.
    std::vector<std::string> names() const;

    /// Deletes one entry for good; throws FileError.
    void removeForGood(const std::string& name, ProtectedPlaces& protectedPlaces, Vanished vanished) const;

private:
    FolderContents(std::filesystem::path path, int parent, const char* name);
    void open(int parent, const char* name);

    std::filesystem::path m_path;
    FileDescriptor m_folder;
    EntryStatus m_status;
};

} // namespace Korvane
