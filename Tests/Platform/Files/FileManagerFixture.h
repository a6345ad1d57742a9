// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileError.h"
#include "Platform/FileManager.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TemporaryFolder.h"

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

/// What an operation failed with, in the words for the user; "" when it did not fail.
inline std::string failureOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const FileError& error) {
        return error.localizedDescription();
    }
    return {};
}

/// Whether something, be it a broken link, has this path.
inline bool isThere(const std::filesystem::path& path)
{
    return std::filesystem::symlink_status(path).type() != std::filesystem::file_type::not_found;
}

/// Where trees of tens of thousands of folders are made in no time: in memory, when this machine has a place for it.
inline std::filesystem::path fastPlace()
{
    const std::filesystem::path memory = "/dev/shm";
    return access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

/// Makes a folder far below `top`, by a path that is longer than the system takes, with these files in it.
inline std::filesystem::path makeLongFolder(std::filesystem::path top, std::initializer_list<const char*> files)
{
    int folder = open(top.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < 30; ++level) {
        const std::string name(250, static_cast<char>('a' + level % 26));
        EXPECT_EQ(mkdirat(folder, name.c_str(), 0700), 0);
        const int next = openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(folder);
        folder = next;
        top /= name;
    }
    for (const char* file : files)
        close(openat(folder, file, O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    close(folder);
    EXPECT_GT(top.native().size(), 4096U);
    return top;
}

/// A home folder of a test's own, its file manager, and a file outside of every item that must survive.
class FileManagerFixture : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(m_sentinel.difference(), ""); }

    std::filesystem::path home(const std::string& name) const { return m_environment.home / name; }
    std::string removing(const std::filesystem::path& path) const
    {
        return failureOf([&] { m_files->removeItem(path); });
    }
    std::string trashing(const std::filesystem::path& path) const
    {
        return failureOf([&] { m_files->trashItem(path); });
    }

    TemporaryFolder m_folder{ fastPlace() };
    Environment m_environment = Environment::inFolder(m_folder.path());
    std::shared_ptr<FileManager> m_files = makeFileManager(m_environment);
    Sentinel m_sentinel{ m_folder / "outside/kept" };
};

} // namespace Korvane
