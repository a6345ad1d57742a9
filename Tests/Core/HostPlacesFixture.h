// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/SystemJunkScanner.h"
#include "Tests/Core/ScanFixture.h"

#include <sys/stat.h>

namespace Korvane {

/// The places that a freedesktop.org host adds to those that every host has.
class HostPlacesFixture : public ScanFixture {
protected:
    std::vector<ScanItem> scanJunk() { return scan(SystemJunkScanner()); }

    void useEnvironment(const Environment& environment)
    {
        host().environment = environment;
        host().files = makeFileManager(environment);
    }

    /// Makes the temporary directory one that all users share.
    void shareTemporaryDirectory() const { chmod(temporary().c_str(), 01777); }

    /// Dates everything below a path, and the path, two days back.
    static void makeOld(const std::filesystem::path& path)
    {
        if (std::filesystem::is_directory(std::filesystem::symlink_status(path))) {
            for (const auto& entry : std::filesystem::directory_iterator(path))
                makeOld(entry.path());
        }
        setModified(path, std::chrono::system_clock::now() - std::chrono::hours(48));
    }

    std::filesystem::path makeOldFile(const std::string& name) const
    {
        writeFile(temporary() / name, std::size_t{ 5000 });
        makeOld(temporary() / name);
        return temporary() / name;
    }

    std::filesystem::path makeOldFolder(const std::string& name) const
    {
        writeFile(temporary() / name / "inner/file", std::size_t{ 5000 });
        makeOld(temporary() / name);
        return temporary() / name;
    }
};

} // namespace Korvane
