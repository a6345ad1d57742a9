// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace Korvane {

/// SHA-256 digests of the first bytes of regular files, one file after another.
///
/// Holds one buffer of at most the prefix for all files. One thread at a time.
class FileDigest {
public:
    /// At most `prefixBytes` from the start of each file are read; none when it is not positive.
    explicit FileDigest(std::int64_t prefixBytes);
    ~FileDigest();
    FileDigest(const FileDigest&) = delete;
    FileDigest& operator=(const FileDigest&) = delete;

    /// The digest as 64 lower-case hexadecimal digits.
    ///
    /// Nothing when `file` cannot be opened or read, is a link or no regular file, or has its content elsewhere
    /// (a placeholder that reading would download). Throws CancellationError when cancelled.
    std::optional<std::string> prefixHash(const std::filesystem::path& file, const Cancellation& cancellation = {});

private:
    std::int64_t m_prefixBytes;
    std::size_t m_capacity;
    std::unique_ptr<unsigned char[]> m_buffer; ///< Made for the first file: a scan without candidates needs none.
};

} // namespace Korvane
