// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>

namespace Korvane {

/// A file that a test puts where nothing may reach: its contents, mode and time must be the same at the end.
class Sentinel {
public:
    /// Writes the file, its missing parent folders included, and remembers what it looks like.
    explicit Sentinel(std::filesystem::path path);

    const std::filesystem::path& path() const { return m_path; }
    bool isUnchanged() const { return difference().empty(); }

    /// What has changed, in words; empty when nothing has.
    std::string difference() const;

private:
    std::string description() const;

    std::filesystem::path m_path;
    std::string m_description;
};

} // namespace Korvane
