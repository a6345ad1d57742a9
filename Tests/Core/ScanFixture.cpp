// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/ScanFixture.h"

#include "Tests/Support/ReserveSpace.h"

#include <algorithm>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

const ScanItem* itemAt(const std::vector<ScanItem>& items, const std::filesystem::path& url)
{
    const auto found = std::find_if(items.begin(), items.end(), [&](const ScanItem& item) { return item.url == url; });
    return found == items.end() ? nullptr : &*found;
}

std::vector<std::filesystem::path> urls(const std::vector<ScanItem>& items)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& item : items)
        paths.push_back(item.url);
    return paths;
}

void setModified(const std::filesystem::path& path, std::chrono::system_clock::time_point moment)
{
    const auto time = std::chrono::system_clock::to_time_t(moment);
    const timespec times[2]{ { time, 0 }, { time, 0 } };
    if (utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0)
        throw std::system_error(errno, std::generic_category(), path.string());
}

std::int64_t allocatedBytes(const std::filesystem::path& path)
{
    struct stat status { };
    if (lstat(path.c_str(), &status) != 0)
        throw std::system_error(errno, std::generic_category(), path.string());
    return std::int64_t{ status.st_blocks } * 512;
}

void writeSparseFile(const std::filesystem::path& path, std::int64_t size)
{
    writeFile(path, std::string_view());
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(size));
}

bool writeAllocatedFile(const std::filesystem::path& path, std::int64_t size)
{
    writeFile(path, std::string_view());
    const int descriptor = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    const bool allocated = descriptor >= 0 && reserveSpace(descriptor, size) && ftruncate(descriptor, size) == 0;
    close(descriptor);
    return allocated && allocatedBytes(path) == size;
}

} // namespace Korvane
