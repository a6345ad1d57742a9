// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"

#include <filesystem>
#include <memory>

namespace Korvane {

/// A folder of this computer by a path that "afcclient" takes for one word.
///
/// The builds of the tool split what they are given at blanks and drop bytes above 127, so that they find no folder
/// whose path has any, as that of a home folder or of downloads may. Such a folder gets, for the life of this object,
/// another path: a link in a folder of its own in the temporary directory, into which nobody else may write.
class PlainFolder {
public:
    /// `folder` is absolute. When it needs another path, and none can be made, it keeps its own.
    PlainFolder(const std::filesystem::path& folder, const Host& host);
    ~PlainFolder();
    PlainFolder(const PlainFolder&) = delete;
    PlainFolder& operator=(const PlainFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::shared_ptr<FileManager> m_files;
    std::filesystem::path m_path;
    std::filesystem::path m_place; ///< What holds the link; empty when there is none.
};

} // namespace Korvane
