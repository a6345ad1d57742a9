// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/OpenFolder.h"

#include "Platform/Files/Retry.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace Korvane {
namespace {

constexpr std::size_t entriesAtOnce = 512;

bool isDots(const char* name) { return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0; }

} // namespace

struct OpenFolder::Stream {
    DIR* directory = nullptr;
    ~Stream()
    {
        if (directory != nullptr)
            closedir(directory);
    }
};

OpenFolder::OpenFolder(FileDescriptor descriptor) noexcept
    : m_descriptor(std::move(descriptor))
{
}
OpenFolder::~OpenFolder() = default;

int OpenFolder::read(EntryBatch& batch)
{
    batch.entries.clear();
    batch.bytes.clear();
    if (!m_stream) {
        // The stream takes over the descriptor it reads, so it gets one of its own: not opened anew, for which one
        // would need the permission to search the folder beside the one to read it.
        const int duplicate = retryInterrupted([&] { return fcntl(m_descriptor.get(), F_DUPFD_CLOEXEC, 0); });
        if (duplicate < 0)
            return -duplicate;
        FileDescriptor own(duplicate);
        auto stream = std::make_unique<Stream>();
        stream->directory = fdopendir(own.get());
        if (stream->directory == nullptr)
            return errno;
        own.release();
        m_stream = std::move(stream);
    }
    std::vector<std::pair<std::size_t, EntryBatch::Kind>> found;
    while (found.size() < entriesAtOnce) {
        errno = 0;
        const dirent* entry = readdir(m_stream->directory);
        if (entry == nullptr) {
            if (errno != 0)
                return errno;
            break;
        }
        if (isDots(entry->d_name))
            continue;
        EntryBatch::Kind kind = entry->d_type == DT_DIR ? EntryBatch::Kind::Folder : EntryBatch::Kind::Other;
        if (entry->d_type == DT_UNKNOWN)
            kind = EntryBatch::Kind::Unknown;
        found.emplace_back(batch.bytes.size(), kind);
        batch.bytes.insert(batch.bytes.end(), entry->d_name, entry->d_name + std::strlen(entry->d_name) + 1);
    }
    for (const auto& [offset, kind] : found)
        batch.entries.push_back({ batch.bytes.data() + offset, kind });
    return 0;
}

int OpenFolder::rewind()
{
    if (m_stream)
        rewinddir(m_stream->directory);
    return 0;
}

int openForTraversal(int parent, const char* name, Links links, FileDescriptor& folder) noexcept
{
    return openFolder(parent, name, links, folder);
}

int changeModeOfClosedFolder(int parent, const char* name, const EntryIdentity& identity, std::uint32_t mode) noexcept
{
    EntryStatus found;
    if (const int error = readStatus(parent, name, Links::NotFollowed, found))
        return error;
    if (!(found.identity == identity))
        return ENOENT;
    return errorOf([&] { return fchmodat(parent, name, static_cast<mode_t>(mode), AT_SYMLINK_NOFOLLOW); });
}

} // namespace Korvane
