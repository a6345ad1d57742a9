// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/PageCache.h"

#include "Platform/FileDescriptor.h"
#include "Tests/Support/TemporaryFolder.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Korvane {

namespace {

void require(bool succeeded, const std::filesystem::path& file)
{
    if (!succeeded)
        throw std::system_error(errno, std::generic_category(), file.native());
}

FileDescriptor openToRead(const std::filesystem::path& file)
{
    FileDescriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    require(static_cast<bool>(descriptor), file);
    return descriptor;
}

} // namespace

std::size_t pagesOf(std::size_t bytes)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (bytes + page - 1) / page;
}

std::size_t pagesInMemory(const std::filesystem::path& file)
{
    const auto descriptor = openToRead(file);
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(file));
    void* const mapping = mmap(nullptr, size, PROT_READ, MAP_SHARED, descriptor.get(), 0);
    require(mapping != MAP_FAILED, file);
    std::vector<unsigned char> pages(pagesOf(size));
    const bool isTold = mincore(mapping, size, pages.data()) == 0;
    munmap(mapping, size);
    require(isTold, file);
    return static_cast<std::size_t>(
        std::count_if(pages.begin(), pages.end(), [](unsigned char page) { return (page & 1U) != 0; }));
}

void forget(const std::filesystem::path& file)
{
    const auto descriptor = openToRead(file);
    require(fsync(descriptor.get()) == 0, file);
    require(posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_DONTNEED) == 0, file);
}

bool canBeForgotten(const std::filesystem::path& probe)
{
    writeFile(probe, "probe");
    forget(probe);
    return pagesInMemory(probe) == 0;
}

void readInto(const std::filesystem::path& file, std::size_t offset, std::size_t count)
{
    const auto descriptor = openToRead(file);
    require(posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_RANDOM) == 0, file);
    std::vector<char> bytes(count);
    require(
        pread(descriptor.get(), bytes.data(), count, static_cast<off_t>(offset)) == static_cast<ssize_t>(count), file);
}

} // namespace Korvane
