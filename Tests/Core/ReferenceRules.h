// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace Korvane {

/// What a rule says of one item: where it lies, its name, its category, its size, whether it is pre-selected.
using ReferenceRow = std::tuple<std::filesystem::path, std::string, std::string, std::int64_t, bool>;

/// The rules of the scanners a second time, slow and simple over std::filesystem.
class ReferenceRules {
public:
    explicit ReferenceRules(std::filesystem::path home);

    /// The largest first; of equal ones the first met in the walk.
    std::vector<ReferenceRow> largeFiles(std::int64_t threshold, std::int64_t maxResults) const;

    /// Each set from its original on.
    std::set<std::vector<ReferenceRow>> duplicates(
        const std::filesystem::path& root, std::int64_t minimum, std::int64_t prefix) const;

    /// Without the places that only some hosts have but ".cache"; `temporary` is the temporary directory, and the one
    /// application that runs is "org.example.Player".
    std::set<ReferenceRow> junk(const std::filesystem::path& temporary) const;

    /// The allocated bytes of a file or a tree.
    static std::int64_t totalSize(const std::filesystem::path& path);

private:
    std::filesystem::path m_home;
};

} // namespace Korvane
