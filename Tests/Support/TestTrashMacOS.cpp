// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestTrash.h"

#include "Platform/FileError.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <stdio.h>
#include <sys/stat.h>

namespace Korvane {

namespace {

using Path = std::filesystem::path;

/// The real file manager, but for the Trash.
class TestFileManager final : public FileManager {
public:
    explicit TestFileManager(const Environment& environment)
        : m_real(makeFileManager(environment))
        , m_trash(testTrash(environment))
    {
    }

    Path homeDirectoryForCurrentUser() const override { return m_real->homeDirectoryForCurrentUser(); }
    Path temporaryDirectory() const override { return m_real->temporaryDirectory(); }
    std::vector<Path> additionalCacheDirectories() const override { return m_real->additionalCacheDirectories(); }
    std::vector<Path> additionalTrashDirectories() const override { return m_real->additionalTrashDirectories(); }
    bool fileExists(const Path& path) const override { return m_real->fileExists(path); }
    std::vector<Path> contentsOfDirectory(
        const Path& folder, HiddenFiles hidden, const Cancellation& cancellation) const override
    {
        return m_real->contentsOfDirectory(folder, hidden, cancellation);
    }
    std::shared_ptr<void> beginTrashing() override { return m_real->beginTrashing(); }
    void removeItem(const Path& path) override { m_real->removeItem(path); }
    void emptyTrash(const Path& trash) override { m_real->emptyTrash(trash); }

    Path trashItem(const Path& path) override
    {
        if (::mkdir(m_trash.c_str(), 0700) != 0 && errno != EEXIST)
            throw FileError(path, std::error_code(errno, std::system_category()));
        for (int number = 1;; ++number) {
            const Path place = m_trash / (path.filename().native() + (number == 1 ? "" : ' ' + std::to_string(number)));
            if (::renamex_np(path.c_str(), place.c_str(), RENAME_EXCL) == 0)
                return place;
            if (errno != EEXIST)
                throw FileError(path, std::error_code(errno, std::system_category()));
        }
    }

private:
    std::shared_ptr<FileManager> m_real;
    Path m_trash;
};

} // namespace

std::shared_ptr<FileManager> makeTestFileManager(const Environment& environment)
{
    return std::make_shared<TestFileManager>(environment);
}

std::filesystem::path testTrash(const Environment& environment) { return environment.home / ".Trash"; }

bool isInTestTrash(const Environment& environment, const std::string& name)
{
    return std::filesystem::exists(std::filesystem::symlink_status(testTrash(environment) / name));
}

} // namespace Korvane
