// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/LongPath.h"

#include "Platform/Walking/DirectoryReader.h"

#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <unistd.h>

namespace Korvane {

LongPath::LongPath(const std::string& path)
    : m_relative(path)
    , m_folder(AT_FDCWD)
{
    while (m_relative.size() >= PATH_MAX) {
        const auto separator = m_relative.rfind('/', PATH_MAX - 2);
        if (separator == std::string::npos)
            return; // A single name of that length: the system refuses it in its own words.
        const auto leading = m_relative.substr(0, separator + 1);
        const int next = DirectoryReader::openLeadingFolder(m_folder, leading.c_str());
        const int error = errno;
        if (m_isOpened)
            close(m_folder);
        m_folder = next;
        m_isOpened = next >= 0;
        const auto rest = m_relative.find_first_not_of('/', separator);
        m_relative = rest == std::string::npos ? "." : m_relative.substr(rest);
        errno = error;
        if (!m_isOpened)
            return;
    }
}

LongPath::~LongPath()
{
    if (m_isOpened)
        close(m_folder);
}

} // namespace Korvane
