// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// A folder, to be asked what truly lies in it.
class InsideFolder {
public:
    /// A folder that does not exist, or that is the root of everything, holds nothing.
    explicit InsideFolder(const std::filesystem::path& folder);

    /// What the path names when every link is followed, where that exists and lies in the folder; else empty.
    std::filesystem::path resolved(const std::filesystem::path& path) const;

private:
    std::filesystem::path m_folder;
};

} // namespace Korvane
