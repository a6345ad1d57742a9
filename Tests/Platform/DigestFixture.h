// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDigest.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Korvane {

/// Files of a test's own, and their digests.
class DigestFixture : public testing::Test {
protected:
    std::filesystem::path make(const std::string& name, const std::string& content) const
    {
        writeFile(folder / name, content);
        return folder / name;
    }

    /// The digest of one file.
    static std::optional<std::string> prefixHash(
        const std::filesystem::path& file, std::int64_t prefixBytes, const Cancellation& cancellation = {})
    {
        const auto pathAt = [&](std::size_t) -> const std::filesystem::path& { return file; };
        return FileDigest(1, pathAt, prefixBytes, cancellation).nextPrefixHash();
    }

    /// The digests of all files; "none" for those without.
    static std::vector<std::string> prefixHashes(
        const std::vector<std::filesystem::path>& files, std::int64_t prefixBytes)
    {
        const auto pathAt = [&](std::size_t index) -> const std::filesystem::path& { return files[index]; };
        FileDigest digest(files.size(), pathAt, prefixBytes);
        std::vector<std::string> hashes;
        while (hashes.size() < files.size())
            hashes.push_back(digest.nextPrefixHash().value_or("none"));
        return hashes;
    }

    TemporaryFolder folder;
};

} // namespace Korvane
