// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>
#include <filesystem>
#include <set>
#include <string>
#include <thread>

namespace Korvane {

/// A folder in which a thread makes, grows, shortens, replaces and removes files and folders until the end of its life.
///
/// Its files are of sizes and contents that nothing else in a RandomHome has.
class RestlessFolder {
public:
    explicit RestlessFolder(std::filesystem::path folder);
    ~RestlessFolder();
    RestlessFolder(const RestlessFolder&) = delete;
    RestlessFolder& operator=(const RestlessFolder&) = delete;

    /// Whether a file at this path may have been here at some moment.
    bool mayHold(const std::filesystem::path& path) const;

private:
    void change();

    std::filesystem::path m_folder;
    std::set<std::string> m_names;
    std::atomic<bool> m_ends{ false };
    std::thread m_thread;
};

} // namespace Korvane
