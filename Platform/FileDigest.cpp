// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileDigest.h"

#include "Platform/DigestFile.h"
#include "Platform/Sha256.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// The most that one call reads: the prefix that duplicates are compared by fits, and a cancel waits for no more.
constexpr std::int64_t largestRead = 4'194'304;

class Descriptor {
public:
    explicit Descriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_descriptor; }
    bool isRegularFile() const
    {
        struct stat status { };
        return m_descriptor >= 0 && fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
    }

private:
    int m_descriptor;
};

ssize_t readSome(int descriptor, unsigned char* buffer, std::size_t count)
{
    ssize_t bytes = 0;
    do
        bytes = read(descriptor, buffer, count);
    while (bytes < 0 && errno == EINTR);
    return bytes;
}

} // namespace

FileDigest::FileDigest(std::int64_t prefixBytes)
    : m_prefixBytes(std::max<std::int64_t>(prefixBytes, 0))
    , m_capacity(static_cast<std::size_t>(std::min(m_prefixBytes, largestRead)))
{
}

FileDigest::~FileDigest() = default;

std::optional<std::string> FileDigest::prefixHash(const std::filesystem::path& file, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    const Descriptor descriptor(openForDigest(file, m_prefixBytes));
    if (!descriptor.isRegularFile())
        return std::nullopt;
    if (!m_buffer)
        m_buffer.reset(new unsigned char[m_capacity]);
    Sha256 sha256;
    for (auto left = m_prefixBytes; left > 0;) {
        const auto wanted = static_cast<std::size_t>(std::min(left, static_cast<std::int64_t>(m_capacity)));
        const auto count = readSome(descriptor.get(), m_buffer.get(), wanted);
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        sha256.update(m_buffer.get(), static_cast<std::size_t>(count));
        left -= count;
        cancellation.throwIfCancelled();
    }
    return sha256.finalize();
}

} // namespace Korvane
