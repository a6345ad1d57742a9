// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/DirectoryReader.h"

#include "Platform/Walking/LongPath.h"
#include "Platform/Walking/PosixEntries.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <pthread.h>
#include <sys/attr.h>
#include <sys/stat.h>
#include <sys/vnode.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t bufferSize = 32768;

/// A part of so many records is taken for one of a long listing; the buffer holds about twice as many of usual length.
constexpr int recordsOfALongPart = 128;

/// What is asked for; the values stand in each record in the order of the bits, as getattrlist(2) says.
attrlist wantedAttributes()
{
    attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.commonattr = ATTR_CMN_RETURNED_ATTRS | ATTR_CMN_NAME | ATTR_CMN_OBJTYPE | ATTR_CMN_MODTIME
        | ATTR_CMN_FNDRINFO | ATTR_CMN_FLAGS | ATTR_CMN_ERROR;
    wanted.fileattr = ATTR_FILE_ALLOCSIZE | ATTR_FILE_DATALENGTH;
    return wanted;
}

EntryType typeOfObject(fsobj_type_t type)
{
    switch (type) {
    case VREG:
        return EntryType::RegularFile;
    case VDIR:
        return EntryType::Directory;
    case VLNK:
        return EntryType::SymbolicLink;
    default:
        return EntryType::Other;
    }
}

std::int64_t nanosecondsOf(const timespec& time) { return nanosecondsSince1970(time.tv_sec, time.tv_nsec); }

/// Takes the values of a record one after the other; they are packed to four bytes.
class RecordValues {
public:
    explicit RecordValues(const char* position)
        : m_position(position)
    {
    }

    const char* position() const { return m_position; }

    template <typename Value> Value take()
    {
        Value value;
        std::memcpy(&value, m_position, sizeof value);
        m_position += sizeof value;
        return value;
    }

private:
    const char* m_position;
};

/// What ATTR_CMN_FNDRINFO gives: FolderInfo or FileInfo and what extends it, in big-endian order; see getattrlist(2).
using FinderInfo = std::array<unsigned char, 32>;

/// Whether the Finder shows the folder as one file, whatever its name: kHasBundle (0x2000) of the flags, which begin at
/// byte 8 of both FolderInfo and FileInfo (Finder.h).
bool hasBundleBit(const FinderInfo& info) { return (info[8] & 0x20U) != 0; }

void takeCommon(RecordValues& values, attrgroup_t returned, ListedEntry& entry)
{
    // The error of the entry comes before all values but the set of those returned.
    if ((returned & ATTR_CMN_ERROR) != 0)
        entry.hasValues = values.take<std::uint32_t>() == 0;
    if ((returned & ATTR_CMN_NAME) != 0) {
        const char* start = values.position();
        entry.name = start + values.take<attrreference_t>().attr_dataoffset;
    }
    if ((returned & ATTR_CMN_OBJTYPE) != 0)
        entry.type = typeOfObject(values.take<fsobj_type_t>());
    if ((returned & ATTR_CMN_MODTIME) != 0)
        entry.modified = nanosecondsOf(values.take<timespec>());
    if ((returned & ATTR_CMN_FNDRINFO) != 0)
        entry.isMarkedAsPackage = hasBundleBit(values.take<FinderInfo>()) && entry.type == EntryType::Directory;
    if ((returned & ATTR_CMN_FLAGS) != 0)
        entry.isHidden = (values.take<std::uint32_t>() & UF_HIDDEN) != 0;
}

/// Allocated bytes of all forks, where the file system tells them; see getattrlist(2).
std::int64_t allocatedSizeOf(const LongPath& item, std::int64_t otherwise)
{
    struct __attribute__((packed, aligned(4))) {
        std::uint32_t length;
        off_t allocated;
    } answer{};
    attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.fileattr = ATTR_FILE_ALLOCSIZE;
    const int result = getattrlistat(item.folder(), item.relative(), &wanted, &answer, sizeof answer, FSOPT_NOFOLLOW);
    return result == 0 && answer.length == sizeof answer ? answer.allocated : otherwise;
}

} // namespace

struct DirectoryReader::Buffer {
    int count = 0; // Of records in the buffer, and of those not given yet.
    int left = 0;
    std::size_t next = 0;
    alignas(8) std::array<char, bufferSize> bytes;
};

DirectoryReader::DirectoryReader()
    : m_buffer(new Buffer)
{
}
DirectoryReader::~DirectoryReader() = default;

bool DirectoryReader::list(int folder, std::error_code& error)
{
    auto wanted = wantedAttributes();
    const int count = getattrlistbulk(folder, &wanted, m_buffer->bytes.data(), bufferSize, 0);
    if (count < 0 && errno != ENOENT)
        error = lastError();
    m_buffer->next = 0;
    m_buffer->count = m_buffer->left = std::max(count, 0);
    return count > 0;
}

bool DirectoryReader::next(ListedEntry& entry)
{
    while (m_buffer->left > 0) {
        --m_buffer->left;
        const char* record = m_buffer->bytes.data() + m_buffer->next;
        RecordValues values(record);
        m_buffer->next += values.take<std::uint32_t>();
        const auto returned = values.take<attribute_set_t>();
        entry = {};
        takeCommon(values, returned.commonattr, entry);
        if ((returned.fileattr & ATTR_FILE_ALLOCSIZE) != 0)
            entry.allocatedSize = values.take<off_t>();
        if ((returned.fileattr & ATTR_FILE_DATALENGTH) != 0)
            entry.fileSize = values.take<off_t>();
        if (!entry.name)
            continue;
        entry.isHidden = entry.isHidden || entry.name[0] == '.';
        return true;
    }
    return false;
}

bool DirectoryReader::isNearlyFull() const noexcept { return m_buffer->count >= recordsOfALongPart; }

std::int64_t DirectoryReader::positionAfter(int, std::int64_t before) const noexcept
{
    return before + m_buffer->count;
}

void DirectoryReader::readValues(int folder, Wanted wanted, ListedEntry& entry)
{
    const bool isToldByListing = entry.type == EntryType::RegularFile || wanted == Wanted::Type;
    if (entry.type != EntryType::Unknown && (isToldByListing || !entry.hasValues))
        return;
    struct stat status { };
    if (fstatat(folder, entry.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        entry.hasValues = false;
        return;
    }
    entry.type = entryTypeOfMode(status.st_mode);
    entry.allocatedSize = std::int64_t{ status.st_blocks } * 512;
    entry.fileSize = status.st_size;
    entry.modified = nanosecondsOf(status.st_mtimespec);
}

ListedEntry DirectoryReader::statusOfItem(const std::string& path)
{
    const LongPath item(path);
    ListedEntry entry;
    struct stat status { };
    entry.hasValues = fstatat(item.folder(), item.relative(), &status, 0) == 0
        && fstatat(item.folder(), item.relative(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (!entry.hasValues)
        return entry;
    entry.type = entryTypeOfMode(status.st_mode);
    entry.fileSize = status.st_size;
    entry.modified = nanosecondsOf(status.st_mtimespec);
    entry.allocatedSize = allocatedSizeOf(item, std::int64_t{ status.st_blocks } * 512);
    return entry;
}

int DirectoryReader::openFolder(int parent, const char* relative, bool isSingle, std::error_code& error)
{
    const int descriptor = openat(parent, relative, folderOpenFlags() | (isSingle ? O_NOFOLLOW : O_NOFOLLOW_ANY));
    if (descriptor < 0)
        error = lastError();
    else
        error.clear();
    return descriptor;
}

int DirectoryReader::openLeadingFolder(int parent, const char* path) noexcept
{
    return openat(parent, path, O_SEARCH | O_CLOEXEC);
}

bool DirectoryReader::opensSeveralLevels() noexcept { return true; }

/// getattrlistbulk has no position that outlives the descriptor.
bool DirectoryReader::canResume() noexcept { return false; }
void DirectoryReader::resume(int, std::int64_t) { }

/// The file system reads folders one at a time however many ask: more readers would only wait for each other.
std::size_t DirectoryReader::readerCount() noexcept { return 4; }

void DirectoryReader::prepareThread()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    pthread_setname_np("korvane-reader");
}

} // namespace Korvane
