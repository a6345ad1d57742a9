// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/DescriptorCache.h"

#include "Platform/Walking/DirectoryReader.h"
#include "Platform/Walking/WalkFolder.h"

#include <chrono>
#include <thread>
#include <utility>

namespace Korvane {

namespace {

/// How often opening is tried while the process is out of descriptors: other readers give theirs back soon.
constexpr int attemptsWithoutDescriptors = 200;
constexpr std::chrono::milliseconds pauseWithoutDescriptors{ 1 };

/// The longest relative path handed to the system at once; PATH_MAX is 1024 on macOS, 4096 on Linux.
constexpr std::size_t longestRelativePath = 1000;

} // namespace

DescriptorCache::DescriptorCache()
    : m_limit(DirectoryReader::descriptorsToKeep())
{
}

std::error_code DescriptorCache::openRoot(WalkFolder& root)
{
    std::error_code error;
    root.m_descriptor = DirectoryReader::openPath(root.name(), error);
    root.m_pins = 1;
    return error;
}

int DescriptorCache::pin(WalkFolder& folder, std::error_code& error)
{
    WalkFolder* ancestor = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        ancestor = &folder;
        while (ancestor->m_descriptor < 0)
            ancestor = ancestor->m_parent.get();
        if (ancestor->m_pins++ == 0)
            unlink(*ancestor);
        if (ancestor == &folder)
            return folder.m_descriptor;
    }
    return ancestor == folder.m_parent.get() ? openStep(*ancestor, folder, folder.m_name, true, error)
                                             : openBelow(*ancestor, folder, error);
}

/// Opens a folder below a pinned ancestor, whose pin passes over to it.
int DescriptorCache::openStep(
    WalkFolder& from, WalkFolder& target, const std::string& relative, bool isSingle, std::error_code& error)
{
    const int opened = openRetrying(from.m_descriptor, relative, isSingle, error);
    const std::lock_guard lock(m_mutex);
    const int descriptor = opened < 0 ? -1 : install(target, opened);
    release(from, Keep::Yes);
    return descriptor;
}

int DescriptorCache::openBelow(WalkFolder& ancestor, WalkFolder& folder, std::error_code& error)
{
    std::vector<WalkFolder*> chain; // From the folder up to the ancestor, which is left out.
    for (WalkFolder* step = &folder; step != &ancestor; step = step->m_parent.get())
        chain.push_back(step);
    WalkFolder* from = &ancestor;
    while (!chain.empty()) {
        std::string relative = chain.back()->m_name;
        WalkFolder* target = chain.back();
        chain.pop_back();
        bool isSingle = true;
        while (DirectoryReader::opensSeveralLevels() && !chain.empty()
            && relative.size() + chain.back()->m_name.size() < longestRelativePath) {
            target = chain.back();
            relative.append("/").append(target->m_name);
            chain.pop_back();
            isSingle = false;
        }
        if (openStep(*from, *target, relative, isSingle, error) < 0)
            return -1;
        from = target;
    }
    return folder.m_descriptor;
}

int DescriptorCache::openRetrying(int parent, const std::string& relative, bool isSingle, std::error_code& error)
{
    for (int attempt = 0;; ++attempt) {
        const int descriptor = DirectoryReader::openFolder(parent, relative.c_str(), isSingle, error);
        const bool isOutOfDescriptors
            = error == std::errc::too_many_files_open || error == std::errc::too_many_files_open_in_system;
        if (descriptor >= 0 || !isOutOfDescriptors || attempt == attemptsWithoutDescriptors)
            return descriptor;
        {
            const std::lock_guard lock(m_mutex);
            closeKept(0);
        }
        if (attempt > 0)
            std::this_thread::sleep_for(pauseWithoutDescriptors);
    }
}

int DescriptorCache::install(WalkFolder& folder, int descriptor)
{
    if (folder.m_descriptor >= 0) { // Another reader was faster.
        if (folder.m_pins++ == 0)
            unlink(folder);
        DirectoryReader::close(descriptor);
        return folder.m_descriptor;
    }
    if (folder.m_position != 0)
        DirectoryReader::resume(descriptor, folder.m_position);
    folder.m_descriptor = descriptor;
    folder.m_pins = 1;
    return descriptor;
}

void DescriptorCache::markPosition(WalkFolder& folder, const DirectoryReader& reader)
{
    const std::lock_guard lock(m_mutex);
    folder.m_position = reader.positionAfter(folder.m_descriptor, folder.m_position);
}

void DescriptorCache::unpin(WalkFolder& folder, Listing listing, Keep keep)
{
    int closing = -1;
    {
        const std::lock_guard lock(m_mutex);
        if (listing == Listing::AtEnd)
            folder.m_position = 0;
        closing = release(folder, keep);
    }
    if (closing >= 0)
        DirectoryReader::close(closing);
}

/// Ends a use; gives back the descriptor that is to be closed, if any, since that need not happen under the lock.
int DescriptorCache::release(WalkFolder& folder, Keep keep)
{
    if (--folder.m_pins > 0)
        return -1;
    if (keep == Keep::No)
        return std::exchange(folder.m_descriptor, -1);
    link(folder);
    closeKept(m_limit);
    return -1;
}

/// A folder whose listing is still to be gone on with stays open where the host could not find the place again.
void DescriptorCache::closeKept(std::size_t remaining)
{
    for (WalkFolder* folder = m_oldest; folder && m_kept > remaining;) {
        WalkFolder& oldest = *std::exchange(folder, folder->m_newer);
        if (oldest.m_position != 0 && !DirectoryReader::canResume())
            continue;
        unlink(oldest);
        DirectoryReader::close(std::exchange(oldest.m_descriptor, -1));
    }
}

void DescriptorCache::forget(WalkFolder& folder) noexcept
{
    int closing = -1;
    {
        const std::lock_guard lock(m_mutex);
        if (folder.m_descriptor >= 0 && folder.m_pins == 0)
            unlink(folder);
        closing = std::exchange(folder.m_descriptor, -1);
    }
    if (closing >= 0)
        DirectoryReader::close(closing);
}

void DescriptorCache::link(WalkFolder& folder) noexcept
{
    folder.m_older = m_newest;
    folder.m_newer = nullptr;
    (m_newest ? m_newest->m_newer : m_oldest) = &folder;
    m_newest = &folder;
    ++m_kept;
}

void DescriptorCache::unlink(WalkFolder& folder) noexcept
{
    (folder.m_older ? folder.m_older->m_newer : m_oldest) = folder.m_newer;
    (folder.m_newer ? folder.m_newer->m_older : m_newest) = folder.m_older;
    folder.m_older = folder.m_newer = nullptr;
    --m_kept;
}

} // namespace Korvane
