// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TemporaryDirectory.h"

#include "Platform/TrailingSlashes.h"

#include <climits>
#include <string>
#include <unistd.h>

namespace Korvane {

std::filesystem::path systemTemporaryDirectory()
{
    // confstr(3): the value with its terminating NUL; 0 when there is none, more than the buffer when cut short.
    std::string buffer(PATH_MAX, '\0');
    const std::size_t length = ::confstr(_CS_DARWIN_USER_TEMP_DIR, buffer.data(), buffer.size());
    if (length > 1 && length <= buffer.size() && buffer.front() == '/') {
        buffer.resize(length - 1);
        return withoutTrailingSlashes(buffer);
    }
    auto folder = absolutePathVariable("TMPDIR");
    return folder.empty() ? std::filesystem::path("/tmp") : folder;
}

} // namespace Korvane
