// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace Korvane {

/// A fresh folder of its own for one test, removed with everything in it at the end of its life.
///
/// Removing follows no link, enters no other volume, opens up folders without permissions, and takes names of any
/// bytes and trees of any depth. The path is absolute and free of links. Others may enter the folder, not write there.
class TemporaryFolder {
public:
    /// Made in TMPDIR, else in "/tmp"; throws std::system_error.
    TemporaryFolder();
    /// Made inside `parent`, for a test that needs a certain volume; throws std::system_error.
    explicit TemporaryFolder(const std::filesystem::path& parent);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::filesystem::path& relative) const { return m_path / relative; }

private:
    std::filesystem::path m_path;
};

/// Writes a file with these contents, its missing parent folders included; throws std::system_error.
void writeFile(const std::filesystem::path& path, std::string_view contents);

/// Writes a file of so many bytes; throws std::system_error.
void writeFile(const std::filesystem::path& path, std::size_t bytes);

/// The whole contents of a file; empty when it cannot be read.
std::string readFile(const std::filesystem::path& path);

/// Removes a folder tree as TemporaryFolder does; false when something of it is left.
bool removeTree(const std::filesystem::path& folder);

} // namespace Korvane
