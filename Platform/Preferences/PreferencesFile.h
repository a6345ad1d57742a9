// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Korvane {

/// Preferences as a text file: "[General]" and one "key=value" per line, UTF-8.
///
/// Reading changes nothing. Writing merges under a lock that other processes of this program respect, and replaces
/// the file at once and durably, so that a reader finds the old or the new one whole. Main thread.
class PreferencesFile {
public:
    using Values = std::map<std::string, std::string>;

    explicit PreferencesFile(std::filesystem::path path)
        : m_path(std::move(path))
    {
    }

    const std::filesystem::path& path() const { return m_path; }

    /// Whether a value can be kept under this key: UTF-8 on one line, without "=", and no beginning of a comment.
    static bool isKey(std::string_view key);

    /// What the file holds: nothing when it is missing, cannot be read, or is no such text throughout.
    Values read() const;

    /// Puts `changes` over what the file holds and returns all of it; nothing when it could not be written.
    ///
    /// What lies there without being such a text is kept beside it under the same name with ".damaged". Missing
    /// folders are made, readable by the user alone. Waits 0.1 s at most for another process that is writing.
    std::optional<Values> merge(const Values& changes) const;

    /// Makes the folder that holds the file, readable by the user alone; false when there is none afterwards.
    bool makeFolder() const;

private:
    std::filesystem::path m_path;
};

} // namespace Korvane
