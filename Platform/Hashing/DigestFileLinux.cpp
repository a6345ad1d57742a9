// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/DigestFile.h"

#include "Platform/Hashing/OpenForDigest.h"
#include "Platform/Walking/LongPath.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr int readFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// The kernel reads no more for one POSIX_FADV_WILLNEED than its read-ahead window, which is 128 KiB unless somebody
/// has set it for the device (VM_READAHEAD_PAGES in linux/mm.h), and leaves out the rest.
constexpr std::int64_t largestAdvice = 131'072;

std::int64_t pageBytes()
{
    static const std::int64_t bytes = sysconf(_SC_PAGESIZE);
    return bytes;
}

std::int64_t pagesOf(FileRange range) { return (range.count + pageBytes() - 1) / pageBytes(); }

/// cachestat(2), from Linux 6.5 on, before the C libraries knew it; of one number on every processor (syscall_64.tbl,
/// asm-generic/unistd.h).
constexpr long cachestatCall = 451;

/// What cachestat(2) is asked and what it answers (linux/mman.h), in bytes and in pages.
struct PagesAsked {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};
struct PagesThere {
    std::uint64_t cached = 0;
    std::uint64_t dirty = 0;
    std::uint64_t writtenBack = 0;
    std::uint64_t evicted = 0;
    std::uint64_t recentlyEvicted = 0;
};

/// Whether the whole range is in memory, asked by one cheap call; not so either where the system does not tell: before
/// Linux 6.5, and of files that the user neither owns nor may write.
bool isWhollyInMemory(int descriptor, FileRange range)
{
    PagesAsked asked{ static_cast<std::uint64_t>(range.offset), static_cast<std::uint64_t>(range.count) };
    PagesThere there;
    return syscall(cachestatCall, descriptor, &asked, &there, 0U) == 0
        && there.cached == static_cast<std::uint64_t>(pagesOf(range));
}

/// For each page of the range, in its lowest bit, whether it is in memory; nothing where that cannot be told.
///
/// Of a file that the user neither owns nor may write the kernel says that all of it is (mincore(2)).
std::vector<unsigned char> residency(int descriptor, FileRange range)
{
    const auto length = static_cast<std::size_t>(range.count);
    std::vector<unsigned char> pages(static_cast<std::size_t>(pagesOf(range)));
    void* const mapping = mmap(nullptr, length, PROT_READ, MAP_SHARED, descriptor, range.offset);
    if (mapping == MAP_FAILED)
        return {};
    if (mincore(mapping, length, pages.data()) != 0)
        pages.clear();
    munmap(mapping, length);
    return pages;
}

/// The parts of the range, in whole pages, that are not in memory.
std::vector<FileRange> rangesNotInMemory(int descriptor, FileRange range)
{
    const auto pages = residency(descriptor, range);
    const auto isHeld = [](unsigned char page) { return (page & 1U) != 0; };
    std::vector<FileRange> ranges;
    for (auto begin = std::find_if_not(pages.begin(), pages.end(), isHeld); begin != pages.end();) {
        const auto end = std::find_if(begin, pages.end(), isHeld);
        ranges.push_back({ range.offset + (begin - pages.begin()) * pageBytes(), (end - begin) * pageBytes() });
        begin = std::find_if_not(end, pages.end(), isHeld);
    }
    return ranges;
}

bool isOwn(int descriptor)
{
    struct stat status { };
    return fstat(descriptor, &status) == 0 && status.st_uid == geteuid();
}

/// Whether a read of each page, told not to wait for any, says that it would have to.
///
/// Some kernels fetch the page that was asked for nevertheless, and no other where reads are told to be random.
bool isKnownToBeAbsent(int descriptor, FileRange range)
{
    for (auto offset = range.offset; offset < range.end(); offset += pageBytes()) {
        char byte = 0;
        iovec target{ &byte, 1 };
        if (preadv2(descriptor, &target, 1, offset, RWF_NOWAIT) >= 0 || errno != EAGAIN)
            return false;
    }
    return true;
}

void tellAheadOf(int descriptor, FileRange range, const Cancellation& cancellation)
{
    for (auto offset = range.offset; offset < range.end() && !cancellation.isCancelled(); offset += largestAdvice) {
        const auto count = std::min(largestAdvice, range.end() - offset);
        (void)posix_fadvise(descriptor, offset, count, POSIX_FADV_WILLNEED);
    }
}

} // namespace

FileDescriptor openForDigest(const std::filesystem::path& file)
{
    const LongPath path(file.native());
    if (!path.isReachable())
        return {};
    // Having been compared with its copies is no use of a file; only its owner may leave the access time alone.
    FileDescriptor descriptor(openat(path.folder(), path.relative(), readFlags | O_NOATIME));
    if (!descriptor && errno == EPERM)
        descriptor = FileDescriptor(openat(path.folder(), path.relative(), readFlags));
    // No more is to be read than is asked for, and that is told ahead; advice only, the read is the same without it.
    if (descriptor)
        (void)posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_RANDOM);
    return descriptor;
}

std::vector<FileRange> DigestFile::tellAhead(FileRange range, const Cancellation& cancellation) const
{
    range.count = std::min(range.count, m_size - range.offset);
    if (range.count <= 0 || isWhollyInMemory(m_descriptor.get(), range))
        return {};
    auto absent = rangesNotInMemory(m_descriptor.get(), range);
    if (absent.empty() && !isOwn(m_descriptor.get())) {
        // Where only a part is in memory, all of it is left there: a page that somebody uses may answer like one that
        // has to be waited for.
        range.count = pagesOf(range) * pageBytes();
        if (isKnownToBeAbsent(m_descriptor.get(), range))
            absent.push_back(range);
        tellAheadOf(m_descriptor.get(), range, cancellation);
        return absent;
    }
    for (const auto& part : absent)
        tellAheadOf(m_descriptor.get(), part, cancellation);
    return absent;
}

void DigestFile::giveBack(const std::vector<FileRange>& ranges) const noexcept
{
    for (const auto& range : ranges)
        (void)posix_fadvise(m_descriptor.get(), range.offset, range.count, POSIX_FADV_DONTNEED);
}

std::int64_t DigestFile::readFromMemory(unsigned char* buffer, FileRange range) const
{
    iovec target{ buffer, static_cast<std::size_t>(range.count) };
    return std::max<std::int64_t>(preadv2(m_descriptor.get(), &target, 1, range.offset, RWF_NOWAIT), 0);
}

} // namespace Korvane
