// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/Sentinel.h"

#include "Platform/FileAttributes.h"
#include "Tests/Support/TemporaryFolder.h"

#include <sstream>
#include <utility>

namespace Korvane {

Sentinel::Sentinel(std::filesystem::path path)
    : m_path(std::move(path))
{
    writeFile(m_path, "This file must outlive the test as it is.\n");
    m_description = description();
}

std::string Sentinel::difference() const
{
    const auto now = description();
    return now == m_description ? std::string() : "was " + m_description + ", is " + now;
}

std::string Sentinel::description() const
{
    std::error_code error;
    const auto status = std::filesystem::symlink_status(m_path, error);
    if (!std::filesystem::exists(status))
        return "missing";
    std::ostringstream text;
    text << "type " << static_cast<int>(status.type()) << " mode " << std::oct
         << static_cast<unsigned>(status.permissions()) << std::dec << " time "
         << attributesOfItem(m_path).contentModificationDate.time_since_epoch().count() << " names "
         << std::filesystem::hard_link_count(m_path, error) << " contents " << readFile(m_path);
    return text.str();
}

} // namespace Korvane
