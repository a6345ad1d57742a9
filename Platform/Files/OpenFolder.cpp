// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/OpenFolder.h"

#include "Platform/Files/Retry.h"

#include <climits>
#include <fcntl.h>
#include <string>

namespace Korvane {

int openFolder(int parent, const char* name, Links links, FileDescriptor& folder) noexcept
{
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | (links == Links::NotFollowed ? O_NOFOLLOW : 0);
    const int opened = retryInterrupted([&] { return openat(parent, name, flags); });
    if (opened < 0)
        return -opened;
    folder = FileDescriptor(opened);
    return 0;
}

int openForTraversal(std::string_view path, FileDescriptor& folder)
{
    constexpr std::size_t longestPiece = PATH_MAX - 1;
    FileDescriptor current;
    int parent = AT_FDCWD;
    while (!path.empty()) {
        std::size_t length = path.size();
        if (length > longestPiece) {
            length = path.rfind('/', longestPiece);
            if (length == 0 || length == std::string_view::npos)
                return ENAMETOOLONG;
        }
        FileDescriptor next;
        if (const int error
            = openForTraversal(parent, std::string(path.substr(0, length)).c_str(), Links::Followed, next))
            return error;
        current = std::move(next);
        parent = current.get();
        const std::size_t rest = path.find_first_not_of('/', length);
        path = rest == std::string_view::npos ? std::string_view() : path.substr(rest);
    }
    folder = std::move(current);
    return 0;
}

} // namespace Korvane
