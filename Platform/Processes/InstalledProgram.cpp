// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/InstalledProgram.h"

#include <system_error>
#include <unistd.h>

namespace Korvane {

std::filesystem::path installedProgram(const std::vector<std::filesystem::path>& folders, std::string_view name)
{
    for (const auto& folder : folders) {
        auto file = folder / name;
        std::error_code error;
        if (std::filesystem::is_regular_file(file, error) && ::access(file.c_str(), X_OK) == 0)
            return file;
    }
    return {};
}

} // namespace Korvane
