// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/HomeFolder.h"

#include <string>
#include <system_error>

namespace Korvane {

HomeFolder::HomeFolder(const std::filesystem::path& home)
{
    std::error_code error;
    m_home = std::filesystem::canonical(home, error);
    if (error || m_home == m_home.root_path())
        m_home.clear();
}

std::filesystem::path HomeFolder::resolved(const std::filesystem::path& path) const
{
    std::error_code error;
    auto real = std::filesystem::canonical(path, error);
    const bool isInside = !error && !m_home.empty() && real.native().starts_with(m_home.native() + '/');
    return isInside ? real : std::filesystem::path();
}

} // namespace Korvane
