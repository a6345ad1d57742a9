// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Platform/Files/FileManagerFixture.h"

#include <sys/stat.h>

namespace Korvane {

/// Looks into a freedesktop.org Trash.
struct TrashView {
    std::filesystem::path path;

    std::filesystem::path file(const std::string& name) const { return path / "files" / name; }
    std::filesystem::path record(const std::string& name) const { return path / "info" / (name + ".trashinfo"); }

    /// The line "Path=" of a record, without these words; "" when there is none.
    std::string originalPath(const std::string& name) const
    {
        const std::string text = readFile(record(name));
        const std::string start = "[Trash Info]\nPath=";
        if (!text.starts_with(start))
            return {};
        return text.substr(start.size(), text.find('\n', start.size()) - start.size());
    }

    /// How many entries `files` and `info` hold together, when every file has its record and the other way round.
    std::string pairs() const
    {
        std::size_t files = 0;
        std::size_t records = 0;
        for (const auto& entry : std::filesystem::directory_iterator(path / "files")) {
            ++files;
            if (!isThere(record(entry.path().filename().native())))
                return "no record of " + entry.path().native();
        }
        for (const auto& entry : std::filesystem::directory_iterator(path / "info"))
            records += entry.path().extension() == ".trashinfo" ? 1 : 0;
        return files == records ? std::to_string(files) : "records without a file";
    }
};

inline unsigned modeOf(const std::filesystem::path& path)
{
    struct stat status { };
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

class TrashFixture : public FileManagerFixture {
protected:
    TrashView m_trash{ m_environment.dataHome() / "Trash" };
};

} // namespace Korvane
