// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/OriginalPath.h"

#include <climits>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace Korvane {
namespace {

[[noreturn]] void failForLength(const ItemPlace& item)
{
    throw FileError(item.path, std::make_error_code(std::errc::filename_too_long));
}

/// What follows the last part of the path that leads to `top`; empty when none does.
std::string_view textBelow(std::string_view path, const EntryStatus& top)
{
    FileDescriptor folder;
    if (openForTraversal("/", folder) != 0)
        return {};
    std::string_view below;
    for (std::size_t start = 1; start < path.size();) {
        EntryStatus status;
        if (readStatus(folder.get(), "", Links::NotFollowed, status) != 0)
            return {};
        if (status.identity == top.identity && status.mount == top.mount)
            below = path.substr(start);
        const std::size_t end = path.find('/', start);
        if (end == std::string_view::npos)
            break;
        FileDescriptor next;
        const std::string part(path.substr(start, end - start));
        if (openForTraversal(folder.get(), part.c_str(), Links::Followed, next) != 0)
            return {};
        folder = std::move(next);
        start = end + 1;
    }
    return below;
}

} // namespace

std::filesystem::path pathOfFolder(int folder)
{
    std::string text(PATH_MAX, '\0');
    const std::string name = "/proc/self/fd/" + std::to_string(folder);
    const ssize_t length = readlink(name.c_str(), text.data(), text.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= text.size())
        return {};
    text.resize(static_cast<std::size_t>(length));
    EntryStatus named;
    EntryStatus held;
    const bool isSame = readStatus(AT_FDCWD, text.c_str(), Links::NotFollowed, named) == 0
        && readStatus(folder, "", Links::NotFollowed, held) == 0 && named.identity == held.identity;
    return isSame ? std::filesystem::path(text) : std::filesystem::path();
}

std::string originalPath(const ItemPlace& item)
{
    if (isPlainPath(item.path))
        return item.path;
    const std::filesystem::path parent = pathOfFolder(item.parent.get());
    if (parent.empty())
        failForLength(item);
    return (parent / item.name).native();
}

std::string originalPathBelow(const ItemPlace& item, int top)
{
    EntryStatus status;
    if (readStatus(top, "", Links::NotFollowed, status) == 0 && isPlainPath(item.path)) {
        const std::string_view below = textBelow(item.path, status);
        if (!below.empty())
            return std::string(below);
    }
    const std::filesystem::path topPath = pathOfFolder(top);
    const std::filesystem::path parent = pathOfFolder(item.parent.get());
    if (topPath.empty() || parent.empty())
        failForLength(item);
    return ((parent / item.name).lexically_relative(topPath)).native();
}

} // namespace Korvane
