// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Background/FolderNames.h"

#include <algorithm>
#include <system_error>

namespace Korvane {

std::vector<std::string> namesInFolder(const std::filesystem::path& folder, const Cancellation& cancellation)
{
    std::vector<std::string> names;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        cancellation.throwIfCancelled();
        names.push_back(entry->path().filename().native());
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace Korvane
