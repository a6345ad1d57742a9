// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/OpenFolder.h"

#include "Platform/Files/Retry.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Korvane {
namespace {

constexpr std::size_t readSize = 64 * 1024;

// The record of getdents64, see getdents(2): inode, offset, length, type, name.
constexpr std::size_t lengthOffset = 16;
constexpr std::size_t typeOffset = 18;
constexpr std::size_t nameOffset = 19;

EntryBatch::Kind kindOf(unsigned char type)
{
    if (type == DT_UNKNOWN)
        return EntryBatch::Kind::Unknown;
    return type == DT_DIR ? EntryBatch::Kind::Folder : EntryBatch::Kind::Other;
}

bool isDots(const char* name) { return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0; }

void split(EntryBatch& batch, std::size_t size)
{
    for (std::size_t position = 0; position < size;) {
        const char* record = batch.bytes.data() + position;
        std::uint16_t length = 0;
        std::memcpy(&length, record + lengthOffset, sizeof length);
        if (!isDots(record + nameOffset))
            batch.entries.push_back({ record + nameOffset, kindOf(static_cast<unsigned char>(record[typeOffset])) });
        position += length;
    }
}

} // namespace

struct OpenFolder::Stream { };

OpenFolder::OpenFolder(FileDescriptor descriptor) noexcept
    : m_descriptor(std::move(descriptor))
{
}
OpenFolder::~OpenFolder() = default;

int OpenFolder::read(EntryBatch& batch)
{
    batch.entries.clear();
    batch.bytes.resize(readSize);
    while (batch.entries.empty()) {
        const long size = retryInterrupted(
            [&] { return syscall(SYS_getdents64, m_descriptor.get(), batch.bytes.data(), batch.bytes.size()); });
        if (size < 0)
            return static_cast<int>(-size);
        if (size == 0)
            return 0;
        split(batch, static_cast<std::size_t>(size));
    }
    return 0;
}

int OpenFolder::rewind()
{
    return errorOf([&] { return lseek(m_descriptor.get(), 0, SEEK_SET); });
}

int openForTraversal(int parent, const char* name, Links links, FileDescriptor& folder) noexcept
{
    const int flags = O_PATH | O_DIRECTORY | O_CLOEXEC | (links == Links::NotFollowed ? O_NOFOLLOW : 0);
    const int opened = retryInterrupted([&] { return openat(parent, name, flags); });
    if (opened < 0)
        return -opened;
    folder = FileDescriptor(opened);
    return 0;
}

int changeModeOfClosedFolder(int parent, const char* name, const EntryIdentity& identity, std::uint32_t mode) noexcept
{
    FileDescriptor folder;
    if (const int error = openForTraversal(parent, name, Links::NotFollowed, folder))
        return error;
    EntryStatus found;
    if (const int error = readStatus(folder.get(), "", Links::NotFollowed, found))
        return error;
    if (!(found.identity == identity))
        return ENOENT;
    // fchmod refuses a descriptor that was opened without permission to read; its name under /proc is the same folder.
    const std::string path = "/proc/self/fd/" + std::to_string(folder.get());
    return errorOf([&] { return chmod(path.c_str(), static_cast<mode_t>(mode)); });
}

} // namespace Korvane
