// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/Trash.h"

#include "Platform/FileError.h"

#include <cerrno>

#import <Foundation/Foundation.h>

namespace Korvane {
namespace {

NSURL* urlOf(const std::filesystem::path& path, bool isDirectory)
{
    return [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:isDirectory relativeToURL:nil];
}

[[noreturn]] void throwError(const std::filesystem::path& path, NSError* error)
{
    NSError* const underlying = error.userInfo[NSUnderlyingErrorKey];
    NSError* const posix = [underlying.domain isEqualToString:NSPOSIXErrorDomain] ? underlying : error;
    const bool isPosix = [posix.domain isEqualToString:NSPOSIXErrorDomain];
    const std::error_code code(isPosix ? static_cast<int>(posix.code) : EIO, std::system_category());
    const char* const text = error.localizedDescription.UTF8String;
    if (text == nullptr)
        throw FileError(path, code);
    throw FileError(path, code, text);
}

} // namespace

std::vector<std::filesystem::path> hostTrashDirectories(const Environment&) { return {}; }

std::filesystem::path moveToHostTrash(const ItemPlace& item, const Environment&, std::shared_ptr<FreedesktopTrash>&)
{
    @autoreleasepool {
        NSError* error = nil;
        NSURL* result = nil;
        NSURL* const url = urlOf(item.path, item.status.isDirectory);
        if (![NSFileManager.defaultManager trashItemAtURL:url resultingItemURL:&result error:&error])
            throwError(item.path, error);
        return result != nil ? std::filesystem::path(result.fileSystemRepresentation) : std::filesystem::path();
    }
}

void emptyHostTrash(const std::filesystem::path& trash, ProtectedPlaces& protectedPlaces)
{
    emptyFolder(trash, protectedPlaces);
}

} // namespace Korvane
