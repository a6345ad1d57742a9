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

/// SHA-256 digests of the first bytes of regular files, one file after another, while the system fetches the next ones.
///
/// A prefix of up to 4 MiB that is in memory is read by one call; nothing is ever read twice, or beyond the prefix.
/// Holds one buffer of at most the prefix (4 MiB when that is larger) and 8 open files. One thread at a time.
class FileDigest {
public:
    /// The path of the file of this number. Called by nextPrefixHash(), only for files whose digest has not been given
    /// yet; the path must stay until it returns.
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
