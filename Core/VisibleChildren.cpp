// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/VisibleChildren.h"

#include "Platform/FileError.h"

namespace Korvane {

std::vector<std::filesystem::path> visibleChildren(
    const std::filesystem::path& folder, const FileManager& files, const Cancellation& cancellation)
{
    try {
        return files.contentsOfDirectory(folder, HiddenFiles::Skipped, cancellation);
    } catch (const FileError&) {
        return {};
    }
}

} // namespace Korvane
