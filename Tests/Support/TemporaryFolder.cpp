// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TemporaryFolder.h"

#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace Korvane {

namespace {

/// A folder on the way down: its name, and which folders in it are still to be gone into.
struct Level {
    std::string name;
    std::vector<std::string> folders;
};

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

FileDescriptor openFolder(int parent, const char* name)
{
    FileDescriptor folder(::openat(parent, name, folderFlags));
    if (!folder && errno == EACCES && ::fchmodat(parent, name, S_IRWXU, 0) == 0)
        folder = FileDescriptor(::openat(parent, name, folderFlags));
    return folder;
}

/// Removes all in the folder but the folders that are not empty, whose names it returns.
std::vector<std::string> removeFiles(int folder)
{
    ::fchmod(folder, S_IRWXU);
    std::vector<std::string> folders;
    DIR* listing = ::fdopendir(::openat(folder, ".", folderFlags));
    if (listing == nullptr)
        return folders;
    while (const dirent* entry = ::readdir(listing)) {
        const std::string name = entry->d_name;
        if (name == "." || name == ".." || ::unlinkat(folder, name.c_str(), 0) == 0)
            continue;
        if (::unlinkat(folder, name.c_str(), AT_REMOVEDIR) != 0)
            folders.push_back(name);
    }
    ::closedir(listing);
    return folders;
}

bool isOnVolume(int folder, dev_t volume)
{
    struct stat status { };
    return ::fstat(folder, &status) == 0 && status.st_dev == volume;
}

void removeContents(FileDescriptor folder)
{
    struct stat root { };
    ::fstat(folder.get(), &root);
    std::vector<Level> levels{ { "", removeFiles(folder.get()) } };
    while (true) {
        auto& level = levels.back();
        if (!level.folders.empty()) {
            const auto name = level.folders.back();
            level.folders.pop_back();
            auto child = openFolder(folder.get(), name.c_str());
            if (child && isOnVolume(child.get(), root.st_dev)) {
                levels.push_back({ name, removeFiles(child.get()) });
                folder = std::move(child);
            }
            continue;
        }
        const auto name = level.name;
        levels.pop_back();
        if (levels.empty())
            return;
        // One descriptor however deep the tree: nobody moves folders about while a test cleans up.
        folder = FileDescriptor(::openat(folder.get(), "..", folderFlags));
        ::unlinkat(folder.get(), name.c_str(), AT_REMOVEDIR);
    }
}

std::filesystem::path makeFolder(const std::filesystem::path& parent)
{
    std::string path = (std::filesystem::canonical(parent) / "korvane-test-XXXXXX").native();
    if (::mkdtemp(path.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), path);
    ::chmod(path.c_str(), S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH);
    return path;
}

std::filesystem::path folderForTemporaryFiles()
{
    const char* folder = std::getenv("TMPDIR");
    return folder != nullptr && folder[0] == '/' ? folder : "/tmp";
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : m_path(makeFolder(folderForTemporaryFiles()))
{
}

TemporaryFolder::TemporaryFolder(const std::filesystem::path& parent)
    : m_path(makeFolder(parent))
{
}

TemporaryFolder::~TemporaryFolder() { removeTree(m_path); }

void writeFile(const std::filesystem::path& path, std::string_view contents)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << contents << std::flush;
    if (!file)
        throw std::system_error(errno, std::generic_category(), path.native());
}

void writeFile(const std::filesystem::path& path, std::size_t bytes) { writeFile(path, std::string(bytes, 'x')); }

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
}

bool removeTree(const std::filesystem::path& folder)
{
    if (auto opened = openFolder(AT_FDCWD, folder.c_str()))
        removeContents(std::move(opened));
    return ::rmdir(folder.c_str()) == 0;
}

} // namespace Korvane
