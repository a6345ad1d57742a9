// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"
#include "Platform/PackageExtensions.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

/// A folder of the walk that is open now: its stream and its path.
class Folder {
public:
    Folder(DIR* stream, std::string path, std::size_t depth)
        : m_stream(stream)
        , m_path(std::move(path))
        , m_depth(depth)
    {
    }
    ~Folder() { closedir(m_stream); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    DIR* stream() const { return m_stream; }
    int descriptor() const { return dirfd(m_stream); }
    const std::string& path() const { return m_path; }
    std::size_t depth() const { return m_depth; }

    std::string childPath(std::string_view name) const
    {
        std::string path = m_path;
        if (path.empty() || path.back() != '/')
            path += '/';
        return path.append(name);
    }

private:
    DIR* m_stream;
    std::string m_path;
    std::size_t m_depth;
};

std::filesystem::path DirectoryEntry::path() const { return m_folder->childPath(m_name); }
std::filesystem::path DirectoryEntry::parentPath() const { return m_folder->path(); }
std::size_t DirectoryEntry::depth() const noexcept { return m_folder->depth(); }

namespace {

EntryType typeOfMode(unsigned mode)
{
    if (S_ISREG(mode))
        return EntryType::RegularFile;
    if (S_ISDIR(mode))
        return EntryType::Directory;
    return S_ISLNK(mode) ? EntryType::SymbolicLink : EntryType::Other;
}

EntryType typeOfListing(unsigned char type)
{
    return type == DT_UNKNOWN ? EntryType::Unknown : typeOfMode(DTTOIF(type));
}

ResourceValues valuesOf(const struct stat& status)
{
    using namespace std::chrono;
    return { std::int64_t{ status.st_blocks } * 512, std::int64_t{ status.st_size },
        sys_time<nanoseconds>(seconds(status.st_mtim.tv_sec) + nanoseconds(status.st_mtim.tv_nsec)) };
}

} // namespace

class DirectoryEnumerator::Walk {
public:
    Walk(const std::filesystem::path& root, EnumerationOptions options, Cancellation cancellation)
        : m_options(std::move(options))
        , m_cancellation(std::move(cancellation))
    {
        open(AT_FDCWD, root.c_str(), root.native(), 0);
    }

    const DirectoryEntry* next()
    {
        m_cancellation.throwIfCancelled();
        if (m_enterLast)
            open(m_folders.back()->descriptor(), m_name.c_str(), m_folders.back()->childPath(m_name),
                m_folders.back()->depth() + 1);
        m_enterLast = false;
        while (!m_folders.empty()) {
            const dirent* listed = readdir(m_folders.back()->stream());
            if (!listed)
                m_folders.pop_back();
            else if (accept(*listed))
                return &m_entry;
        }
        return nullptr;
    }

    void skipDescendants() { m_enterLast = false; }

private:
    void open(int parent, const char* name, const std::string& path, std::size_t depth)
    {
        const int follow = depth == 0 ? 0 : O_NOFOLLOW;
        const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | follow);
        DIR* stream = descriptor < 0 ? nullptr : fdopendir(descriptor);
        if (stream) {
            m_folders.push_back(std::make_unique<Folder>(stream, path, depth));
            return;
        }
        const std::error_code code(errno, std::generic_category());
        if (m_options.errorHandler && m_options.errorHandler(FileError(path, code)) == OnError::Stop)
            m_folders.clear();
    }

    bool accept(const dirent& listed)
    {
        m_name = listed.d_name;
        if (m_name == "." || m_name == ".." || (m_options.hiddenFiles == HiddenFiles::Skipped && m_name.front() == '.'))
            return false;
        m_entry.m_name = m_name;
        m_entry.m_folder = m_folders.back().get();
        m_entry.m_type = typeOfListing(listed.d_type);
        readValues();
        m_entry.m_isPackage = m_entry.m_type == EntryType::Directory && hasPackageExtension(m_name);
        m_enterLast = m_entry.m_type == EntryType::Directory && entered();
        return true;
    }

    void readValues()
    {
        m_entry.m_values = {};
        m_entry.m_hasValues = false;
        const bool wanted = m_options.values == PrefetchedValues::AllValues
            || (m_options.values == PrefetchedValues::FileValues && m_entry.m_type != EntryType::Directory);
        if (!wanted && m_entry.m_type != EntryType::Unknown)
            return;
        struct stat status { };
        if (fstatat(m_folders.back()->descriptor(), m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return;
        m_entry.m_type = typeOfMode(status.st_mode);
        m_entry.m_values = valuesOf(status);
        m_entry.m_hasValues = true;
    }

    bool entered() const
    {
        if (m_entry.m_isPackage && m_options.packageDescendants == PackageDescendants::Skipped)
            return false;
        if (m_options.namesNeverEntered && m_options.namesNeverEntered->contains(m_name))
            return false;
        const auto& never = m_options.pathsNeverEntered;
        return never.empty() || std::find(never.begin(), never.end(), m_entry.path()) == never.end();
    }

    EnumerationOptions m_options;
    Cancellation m_cancellation;
    std::vector<std::unique_ptr<Folder>> m_folders;
    DirectoryEntry m_entry;
    std::string m_name;
    bool m_enterLast = false;
};

DirectoryEnumerator::DirectoryEnumerator(
    const std::filesystem::path& root, EnumerationOptions options, const Cancellation& cancellation)
    : m_walk(std::make_unique<Walk>(root, std::move(options), cancellation))
{
}
DirectoryEnumerator::~DirectoryEnumerator() = default;
DirectoryEnumerator::DirectoryEnumerator(DirectoryEnumerator&&) noexcept = default;
DirectoryEnumerator& DirectoryEnumerator::operator=(DirectoryEnumerator&&) noexcept = default;
const DirectoryEntry* DirectoryEnumerator::next() { return m_walk->next(); }
void DirectoryEnumerator::skipDescendants() { m_walk->skipDescendants(); }

} // namespace Korvane
