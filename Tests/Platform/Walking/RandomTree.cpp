// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Walking/RandomTree.h"

#include <array>
#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace fs = std::filesystem;

fs::path placeForLargeTrees()
{
    const fs::path memory = "/dev/shm";
    return ::access(memory.c_str(), R_OK | W_OK | X_OK) == 0 ? memory : fs::temp_directory_path();
}

RandomTree::RandomTree(const fs::path& root, std::uint32_t seed, int entries)
    : m_numbers(seed)
    , m_root(root)
    , m_folders{ root }
{
    while (m_count < entries) {
        // Mostly the folder made last: trees grow deep as well as wide.
        const auto parent
            = below(3) == 0 ? m_folders.back() : m_folders[below(static_cast<std::uint32_t>(m_folders.size()))];
        const auto kind = below(10);
        if (kind < 3)
            addFolder(parent);
        else if (kind < 8)
            addFile(parent);
        else
            addLink(parent);
    }
}

std::string RandomTree::freshName()
{
    static const std::array<std::string, 8> stems{ "a", ".hidden", "Name with blanks", "bytes\xff\xfe\x80",
        "line\nbreak", "\xc3\xa9t\xc3\xa9", "-rf", std::string(245, 'n') };
    return stems[below(static_cast<std::uint32_t>(stems.size()))] + std::to_string(m_count++);
}

void RandomTree::addFolder(const fs::path& parent)
{
    static const std::array<std::string, 6> names{ "node_modules", "Library", "target", "Tool.app",
        "Photos.PhotosLibrary", ".git" };
    auto path = parent / freshName();
    if (below(3) == 0)
        path = parent / names[below(static_cast<std::uint32_t>(names.size()))];
    std::error_code refused; // Some file systems take only names that are UTF-8.
    if (fs::create_directory(path, refused))
        m_folders.push_back(path);
}

void RandomTree::addFile(const fs::path& parent)
{
    const auto path = parent / freshName();
    const auto kind = below(8);
    if (kind == 0) {
        ::mkfifo(path.c_str(), 0600);
        return;
    }
    if (kind == 1 && !m_files.empty()) {
        std::error_code refused;
        fs::create_hard_link(m_files[below(static_cast<std::uint32_t>(m_files.size()))], path, refused);
        return;
    }
    std::ofstream file(path, std::ios::binary);
    if (!(file << std::string(below(9000), 'x') << std::flush))
        return;
    if (kind == 2)
        fs::resize_file(path, 1 + below(10'000'000));
    m_files.push_back(path);
}

void RandomTree::addLink(const fs::path& parent)
{
    const auto path = parent / freshName();
    const std::array<fs::path, 5> targets{ m_root, parent,
        m_folders[below(static_cast<std::uint32_t>(m_folders.size()))], "nowhere",
        m_files.empty() ? m_root : m_files.back() };
    std::error_code refused;
    fs::create_symlink(targets[below(static_cast<std::uint32_t>(targets.size()))], path, refused);
}

} // namespace Korvane
