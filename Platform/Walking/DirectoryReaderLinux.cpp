// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/DirectoryReader.h"

#include "Platform/Walking/LongPath.h"
#include "Platform/Walking/PosixEntries.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// What getdents64 writes; see getdents(2).
struct LinuxEntry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
    char name[1];
};

constexpr std::size_t bufferSize = 32768;

/// Longer than any record: the header, a name of 255 bytes and what rounds it up.
constexpr std::size_t longestRecord = 288;

EntryType typeOfListing(std::uint8_t type)
{
    switch (type) {
    case DT_REG:
        return EntryType::RegularFile;
    case DT_DIR:
        return EntryType::Directory;
    case DT_LNK:
        return EntryType::SymbolicLink;
    case DT_UNKNOWN:
        return EntryType::Unknown;
    default:
        return EntryType::Other;
    }
}

bool isSelfOrParent(const char* name) { return name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2])); }

} // namespace

struct DirectoryReader::Buffer {
    std::size_t length = 0;
    std::size_t next = 0;
    alignas(LinuxEntry) std::array<char, bufferSize> bytes;
};

DirectoryReader::DirectoryReader()
    : m_buffer(new Buffer)
{
}
DirectoryReader::~DirectoryReader() = default;

bool DirectoryReader::list(int folder, std::error_code& error)
{
    const long length = syscall(SYS_getdents64, folder, m_buffer->bytes.data(), bufferSize);
    // A folder that is removed while it is being read has come to its end.
    if (length < 0 && errno != ENOENT)
        error = lastError();
    m_buffer->next = 0;
    m_buffer->length = length > 0 ? static_cast<std::size_t>(length) : 0;
    return length > 0;
}

bool DirectoryReader::next(ListedEntry& entry)
{
    while (m_buffer->next < m_buffer->length) {
        const auto* listed = reinterpret_cast<const LinuxEntry*>(m_buffer->bytes.data() + m_buffer->next);
        m_buffer->next += listed->length;
        if (isSelfOrParent(listed->name))
            continue;
        entry.name = listed->name;
        entry.type = typeOfListing(listed->type);
        entry.isHidden = listed->name[0] == '.';
        entry.hasValues = true;
        return true;
    }
    return false;
}

bool DirectoryReader::isNearlyFull() const noexcept { return m_buffer->length + longestRecord > bufferSize; }

std::int64_t DirectoryReader::positionAfter(int folder, std::int64_t) const noexcept
{
    return lseek(folder, 0, SEEK_CUR);
}

void DirectoryReader::readValues(int folder, Wanted wanted, ListedEntry& entry)
{
    unsigned mask = wanted == Wanted::Type ? 0U : unsigned{ STATX_BLOCKS };
    if (wanted == Wanted::All)
        mask |= STATX_SIZE | STATX_MTIME;
    if (entry.type == EntryType::Unknown)
        mask |= STATX_TYPE;
    if (mask == 0)
        return;
    struct statx status;
    if (statx(folder, entry.name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, mask, &status) != 0) {
        entry.hasValues = false;
        return;
    }
    if (entry.type == EntryType::Unknown)
        entry.type = entryTypeOfMode(status.stx_mode);
    entry.allocatedSize = static_cast<std::int64_t>(status.stx_blocks) * 512;
    entry.fileSize = static_cast<std::int64_t>(status.stx_size);
    entry.modified = nanosecondsSince1970(status.stx_mtime.tv_sec, status.stx_mtime.tv_nsec);
}

ListedEntry DirectoryReader::statusOfItem(const std::string& path)
{
    const LongPath item(path);
    struct stat target { };
    ListedEntry entry;
    entry.name = item.relative();
    if (fstatat(item.folder(), item.relative(), &target, 0) != 0) {
        entry.hasValues = false;
        return entry;
    }
    readValues(item.folder(), Wanted::All, entry);
    entry.name = nullptr;
    return entry;
}

int DirectoryReader::openFolder(int parent, const char* relative, bool isSingle, std::error_code& error)
{
    int descriptor = -1;
    if (isSingle) {
        descriptor = openat(parent, relative, folderOpenFlags() | O_NOFOLLOW);
    } else {
        open_how how{};
        how.flags = static_cast<std::uint64_t>(folderOpenFlags());
        how.resolve = RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH;
        descriptor = static_cast<int>(syscall(SYS_openat2, parent, relative, &how, sizeof how));
    }
    if (descriptor < 0)
        error = lastError();
    else
        error.clear();
    return descriptor;
}

int DirectoryReader::openLeadingFolder(int parent, const char* path) noexcept
{
    return openat(parent, path, O_PATH | O_DIRECTORY | O_CLOEXEC);
}

bool DirectoryReader::opensSeveralLevels() noexcept
{
    static const bool isKnownToKernel = [] {
        open_how how{};
        how.flags = static_cast<std::uint64_t>(folderOpenFlags());
        how.resolve = RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH;
        const int descriptor = static_cast<int>(syscall(SYS_openat2, AT_FDCWD, ".", &how, sizeof how));
        if (descriptor >= 0)
            ::close(descriptor);
        return descriptor >= 0;
    }();
    return isKnownToKernel;
}

bool DirectoryReader::canResume() noexcept { return true; }
void DirectoryReader::resume(int folder, std::int64_t position) { lseek(folder, position, SEEK_SET); }

/// A cold disk wants more readers than there are cores; on a warm one the surplus sleeps or costs nothing.
std::size_t DirectoryReader::readerCount() noexcept { return 8; }

void DirectoryReader::prepareThread()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    pthread_setname_np(pthread_self(), "korvane-reader");
}

} // namespace Korvane
