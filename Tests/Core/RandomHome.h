// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <random>
#include <string>

namespace Korvane {

/// Fills homes with trees that differ from seed to seed and are the same for one seed: hidden names, packages,
/// dependency folders, links, pipes, hard links, names that are no text, equal sizes, equal contents, equal dates.
class RandomHome {
public:
    explicit RandomHome(unsigned seed)
        : m_random(seed)
    {
    }

    /// Makes up to so many entries below `folder`.
    void fill(const std::filesystem::path& folder, int entries);

private:
    std::filesystem::path randomFolder(const std::filesystem::path& folder);
    void makeEntry(const std::filesystem::path& path);
    void makeFile(const std::filesystem::path& path);
    std::string randomName();
    std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }

    std::mt19937 m_random;
    std::filesystem::path m_lastFile;
    bool m_takesAnyBytes = true;
};

} // namespace Korvane
