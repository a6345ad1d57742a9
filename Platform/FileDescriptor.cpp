// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <unistd.h>

namespace Korvane {

void FileDescriptor::close() noexcept
{
    if (m_descriptor < 0)
        return;
    const int error = errno;
    ::close(release());
    errno = error;
}

} // namespace Korvane
