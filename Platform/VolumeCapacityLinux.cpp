// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/VolumeCapacity.h"

#include <cerrno>
#include <limits>
#include <sys/statvfs.h>

namespace Korvane {

namespace {

std::int64_t bytesOfBlocks(std::uint64_t blocks, std::uint64_t blockSize)
{
    std::int64_t bytes = 0;
    if (__builtin_mul_overflow(blocks, blockSize, &bytes))
        return std::numeric_limits<std::int64_t>::max();
    return bytes;
}

} // namespace

std::optional<VolumeCapacity> volumeCapacity(const std::filesystem::path& path)
{
    struct statvfs volume { };
    int result = 0;
    do {
        result = ::statvfs(path.c_str(), &volume);
    } while (result != 0 && errno == EINTR);
    if (result != 0 || volume.f_blocks == 0)
        return std::nullopt;
    const std::uint64_t blockSize = volume.f_frsize != 0 ? volume.f_frsize : volume.f_bsize;
    return VolumeCapacity{ bytesOfBlocks(volume.f_blocks, blockSize), bytesOfBlocks(volume.f_bavail, blockSize) };
}

} // namespace Korvane
