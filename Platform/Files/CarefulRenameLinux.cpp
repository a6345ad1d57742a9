// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/CarefulRename.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/Retry.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

int renameOnce(const ItemPlace& item, int folder, const std::string& name)
{
    const int error = errorOf(
        [&] { return renameat2(item.parent.get(), item.name.c_str(), folder, name.c_str(), RENAME_NOREPLACE); });
    if (error == EINVAL || error == ENOSYS || error == ENOTSUP)
        return renameOntoPlaceholder(item, folder, name);
    return error;
}

bool isClosedFolder(const ItemPlace& item)
{
    return item.status.isDirectory && item.status.owner == geteuid() && (item.status.mode & 0200U) == 0;
}

int renameOpenedUp(const ItemPlace& item, int folder, const std::string& name)
{
    const char* const from = item.name.c_str();
    const EntryIdentity& identity = item.status.identity;
    const std::uint32_t mode = item.status.mode;
    if (changeModeOfClosedFolder(item.parent.get(), from, identity, mode | 0200U) != 0)
        return EACCES;
    const int error = renameOnce(item, folder, name);
    if (changeModeOfClosedFolder(item.parent.get(), from, identity, mode) != 0)
        changeModeOfClosedFolder(folder, name.c_str(), identity, mode);
    return error;
}

} // namespace

bool isItemAt(const ItemPlace& item, int folder, const std::string& name)
{
    EntryStatus status;
    return readStatus(folder, name.c_str(), Links::NotFollowed, status) == 0 && status.identity == item.status.identity;
}

int renameOntoPlaceholder(const ItemPlace& item, int folder, const std::string& name)
{
    int error = 0;
    if (item.status.isDirectory) {
        error = errorOf([&] { return mkdirat(folder, name.c_str(), 0700); });
    } else {
        constexpr int flags = O_CREAT | O_EXCL | O_WRONLY | O_NOFOLLOW | O_CLOEXEC;
        const int opened = retryInterrupted([&] { return openat(folder, name.c_str(), flags, 0600); });
        error = opened < 0 ? -opened : 0;
        FileDescriptor(opened < 0 ? -1 : opened).close();
    }
    if (error != 0)
        return error;
    error = errorOf([&] { return renameat(item.parent.get(), item.name.c_str(), folder, name.c_str()); });
    if (error != 0 && !isItemAt(item, folder, name))
        errorOf([&] { return unlinkat(folder, name.c_str(), item.status.isDirectory ? AT_REMOVEDIR : 0); });
    return error;
}

int renameCarefully(const ItemPlace& item, int folder, const std::string& name)
{
    int error = renameOnce(item, folder, name);
    if (error == EACCES && isClosedFolder(item))
        error = renameOpenedUp(item, folder, name);
    // A server may carry out what it then reports as failed: what counts is where the item is.
    if (error != 0 && !isItemAt(item, item.parent.get(), item.name) && isItemAt(item, folder, name))
        return 0;
    return error;
}

} // namespace Korvane
