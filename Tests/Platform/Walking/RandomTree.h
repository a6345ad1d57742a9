// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace Korvane {

/// Large trees are made in memory where the system has a place for that, so that no test waits for a disk.
std::filesystem::path placeForLargeTrees();

/// Fills a folder with a tree of everything that walks meet: hidden names, packages, dependency folders, links of all
/// kinds, hard links, sparse files, pipes, names of any bytes. The same seed makes the same tree.
class RandomTree {
public:
    RandomTree(const std::filesystem::path& root, std::uint32_t seed, int entries);

private:
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(m_numbers() % limit); }
    std::string freshName();
    void addFolder(const std::filesystem::path& parent);
    void addFile(const std::filesystem::path& parent);
    void addLink(const std::filesystem::path& parent);

    std::mt19937 m_numbers;
    int m_count = 0;
    std::filesystem::path m_root;
    std::vector<std::filesystem::path> m_folders;
    std::vector<std::filesystem::path> m_files;
};

} // namespace Korvane
