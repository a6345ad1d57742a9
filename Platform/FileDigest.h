// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Korvane {

class PrefixReader;

/// SHA-256 digests of the first bytes of regular files, one file after another, while the next ones are being read.
///
/// Holds two buffers of at most the prefix (4 MiB each when that is larger) for all files, and at most 8 open files.
/// One thread at a time.
class FileDigest {
public:
    /// The path of the file of this number. Called on a thread of the digest's own, only for files whose digest has not
    /// been given yet; the path must stay until it has.
    using PathAt = std::function<const std::filesystem::path&(std::size_t)>;

    /// At most `prefixBytes` from the start of each of `files` files are read; none when it is not positive.
    FileDigest(std::size_t files, PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation = {});
    ~FileDigest();
    FileDigest(const FileDigest&) = delete;
    FileDigest& operator=(const FileDigest&) = delete;

    /// The digest of the next file as 64 lower-case hexadecimal digits.
    ///
    /// Nothing when it cannot be opened or read, is a link or no regular file, or has its content elsewhere (a
    /// placeholder that reading would download). Throws CancellationError when cancelled. To be called once per file.
    std::optional<std::string> nextPrefixHash();

private:
    Cancellation m_cancellation;
    std::unique_ptr<PrefixReader> m_reader;
};

} // namespace Korvane
