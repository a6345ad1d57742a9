// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ItemPlace.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Localized.h"

#include <fcntl.h>
#include <string_view>
#include <utility>

namespace Korvane {
namespace {

[[noreturn]] void refuse(const std::filesystem::path& path, const std::string& reason)
{
    throw FileError(path, std::make_error_code(std::errc::invalid_argument), reason);
}

/// The folder at the end of the path, with its status; the kept one when it is the same.
int openParent(const std::string& path, KeptFolder kept, ItemPlace& item)
{
    if (kept.path == path) {
        if (readStatus(AT_FDCWD, path.c_str(), Links::Followed, item.parentStatus) == 0
            && kept.status.identity == item.parentStatus.identity && kept.status.mount == item.parentStatus.mount) {
            item.parent = std::move(kept.folder);
            return 0;
        }
    }
    const int error = openForTraversal(path, item.parent);
    return error != 0 ? error : readStatus(item.parent.get(), "", Links::NotFollowed, item.parentStatus);
}

} // namespace

bool isPlainPath(std::string_view path)
{
    if (!path.starts_with('/'))
        return false;
    for (std::size_t start = 1;;) {
        const std::size_t end = path.find('/', start);
        const std::string_view part = path.substr(start, end == std::string_view::npos ? end : end - start);
        if (part.empty() || part == "." || part == "..")
            return false;
        if (end == std::string_view::npos)
            return true;
        start = end + 1;
    }
}

std::string itemPath(const std::filesystem::path& path)
{
    std::string_view text = path.native();
    if (text.empty())
        refuse(path, localized("Errors", "Nothing was named to be removed."));
    if (text.find('\0') != std::string_view::npos)
        refuse(path, filledIn(localized("Errors", "“%1” cannot be the name of a file."), { displayText(path) }));
    if (text.front() != '/')
        refuse(path, filledIn(localized("Errors", "“%1” is not a full path."), { displayText(path) }));
    while (!text.empty() && text.back() == '/')
        text.remove_suffix(1);
    if (text.empty())
        refuse(path, localized("Errors", "The root of the file system is never removed."));
    const std::string_view name = text.substr(text.rfind('/') + 1);
    if (name == "." || name == "..")
        refuse(
            path, filledIn(localized("Errors", "“%1” does not name an item but a way to one."), { displayText(path) }));
    return std::string(text);
}

ItemPlace findItem(const std::filesystem::path& path, KeptFolder kept)
{
    ItemPlace item;
    item.path = itemPath(path);
    const std::size_t slash = item.path.rfind('/');
    item.name = item.path.substr(slash + 1);
    int error = openParent(item.path.substr(0, slash + 1), std::move(kept), item);
    if (error == 0)
        error = readStatus(item.parent.get(), item.name.c_str(), Links::NotFollowed, item.status);
    if (error != 0)
        throw FileError(path, std::error_code(error, std::system_category()));
    return item;
}

KeptFolder keepParent(ItemPlace& item)
{
    return { item.path.substr(0, item.path.rfind('/') + 1), std::move(item.parent), item.parentStatus };
}

} // namespace Korvane
