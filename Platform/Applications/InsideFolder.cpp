// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/InsideFolder.h"

#include <string>
#include <system_error>

namespace Korvane {

InsideFolder::InsideFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    m_folder = std::filesystem::canonical(folder, error);
    if (error || m_folder == m_folder.root_path())
        m_folder.clear();
}

std::filesystem::path InsideFolder::resolved(const std::filesystem::path& path) const
{
    std::error_code error;
    auto real = std::filesystem::canonical(path, error);
    const bool isInside = !error && !m_folder.empty() && real.native().starts_with(m_folder.native() + '/');
    return isInside ? real : std::filesystem::path();
}

} // namespace Korvane
