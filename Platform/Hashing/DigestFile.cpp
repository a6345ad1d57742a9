// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/DigestFile.h"

#include "Platform/Hashing/OpenForDigest.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// The most that is waited for between two looks at the cancellation: 50 ms of a disk that reads 5 MB in a second.
constexpr std::int64_t largestWait = 262'144;

std::int64_t readSome(int descriptor, unsigned char* buffer, FileRange range)
{
    ssize_t bytes = 0;
    do
        bytes = pread(descriptor, buffer, static_cast<std::size_t>(range.count), range.offset);
    while (bytes < 0 && errno == EINTR);
    return bytes;
}

} // namespace

DigestFile::DigestFile(const std::filesystem::path& file)
    : m_descriptor(openForDigest(file))
{
    struct stat status { };
    if (!m_descriptor) {
        m_lacksDescriptor = errno == EMFILE || errno == ENFILE;
    } else if (fstat(m_descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        m_descriptor.close();
    } else {
        m_size = status.st_size;
        m_device = static_cast<std::uint64_t>(status.st_dev);
        m_number = static_cast<std::uint64_t>(status.st_ino);
    }
}

bool DigestFile::isSameFileAs(const DigestFile& other) const noexcept
{
    return m_device == other.m_device && m_number == other.m_number;
}

std::int64_t DigestFile::read(unsigned char* buffer, FileRange range, const Cancellation& cancellation) const
{
    auto done = readFromMemory(buffer, range);
    // A file that says it is empty may still hold something: some file systems only know when they are read.
    while (done < range.count && (done == 0 || range.offset + done != m_size) && !cancellation.isCancelled()) {
        const auto wanted = std::min(range.count - done, largestWait);
        const auto count = readSome(m_descriptor.get(), buffer + done, { range.offset + done, wanted });
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

} // namespace Korvane
