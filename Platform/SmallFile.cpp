// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/SmallFile.h"

#include "Platform/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

std::optional<std::string> contentsOfSmallFile(const std::filesystem::path& path, std::size_t largest)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status { };
    if (!file || ::fstat(file.get(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return std::nullopt;
    }
    // Files of the kernel say that they are empty, so that only reading tells their length.
    constexpr std::size_t step = 16 * 1024;
    std::string text;
    std::size_t length = 0;
    while (length <= largest) {
        text.resize(std::min(length + step, largest + 1));
        const auto count = ::read(file.get(), text.data() + length, text.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0) {
            text.resize(length);
            return text;
        }
        length += static_cast<std::size_t>(count);
    }
    errno = EFBIG;
    return std::nullopt;
}

} // namespace Korvane
