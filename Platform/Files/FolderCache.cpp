// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderCache.h"

#include <cerrno>
#include <utility>
#include <vector>

namespace Korvane {
namespace {

int requireSame(const OpenFolder& folder, const EntryIdentity& identity)
{
    EntryStatus status;
    if (const int error = readStatus(folder.descriptor(), "", Links::NotFollowed, status))
        return error;
    return status.identity == identity ? 0 : ENOENT;
}

} // namespace

int FolderCache::open(int parent, const char* name, Lease& lease)
{
    FileDescriptor descriptor;
    int error = openFolder(parent, name, Links::NotFollowed, descriptor);
    if (error == EMFILE || error == ENFILE) {
        putAside(0);
        error = openFolder(parent, name, Links::NotFollowed, descriptor);
    }
    if (error == 0)
        lease = std::make_shared<OpenFolder>(std::move(descriptor));
    return error;
}

int FolderCache::openFirst(DoomedFolder& folder, Lease& lease)
{
    Lease above;
    if (const int error = acquire(*folder.parent, above))
        return error;
    Lease opened;
    if (const int error = open(above->descriptor(), folder.name.c_str(), opened))
        return error;
    EntryStatus status;
    if (const int error = readStatus(opened->descriptor(), "", Links::NotFollowed, status))
        return error;
    folder.status = status;
    keep(folder, opened);
    lease = std::move(opened);
    return 0;
}

int FolderCache::acquire(DoomedFolder& folder, Lease& lease, const OpenFolder* below)
{
    {
        const std::lock_guard lock(m_mutex);
        if (folder.open) {
            lease = folder.open;
            return 0;
        }
    }
    Lease opened;
    int error = below != nullptr ? reopenFromBelow(folder, *below, opened) : ENOENT;
    if (error != 0)
        error = reopenFromAbove(folder, opened);
    if (error != 0)
        return error;
    keep(folder, opened);
    lease = std::move(opened);
    return 0;
}

int FolderCache::reopenFromBelow(DoomedFolder& folder, const OpenFolder& below, Lease& lease)
{
    Lease opened;
    if (const int error = open(below.descriptor(), "..", opened))
        return error;
    if (const int error = requireSame(*opened, folder.status->identity))
        return error;
    lease = std::move(opened);
    return 0;
}

int FolderCache::reopenFromAbove(DoomedFolder& folder, Lease& lease)
{
    std::vector<DoomedFolder*> way;
    Lease current;
    {
        const std::lock_guard lock(m_mutex);
        DoomedFolder* step = &folder;
        for (; !step->open; step = step->parent)
            way.push_back(step);
        current = step->open;
    }
    for (; !way.empty(); way.pop_back()) {
        Lease next;
        if (const int error = open(current->descriptor(), way.back()->name.c_str(), next))
            return error;
        if (const int error = requireSame(*next, way.back()->status->identity))
            return error;
        current = std::move(next);
    }
    lease = std::move(current);
    return 0;
}

/// Remembers the open folder; when another thread was faster, its lease is the one that counts.
void FolderCache::keep(DoomedFolder& folder, Lease& lease)
{
    putAside(m_capacity - 1);
    const std::lock_guard lock(m_mutex);
    if (folder.open) {
        lease = folder.open;
        return;
    }
    folder.open = lease;
    folder.cached = m_open.insert(m_open.end(), &folder);
}

void FolderCache::drop(DoomedFolder& folder)
{
    Lease closing;
    const std::lock_guard lock(m_mutex);
    if (!folder.open)
        return;
    closing = std::move(folder.open);
    folder.open.reset();
    m_open.erase(folder.cached);
}

void FolderCache::pin(DoomedFolder& folder, Lease lease)
{
    const std::lock_guard lock(m_mutex);
    folder.open = std::move(lease);
}

void FolderCache::putAside(std::size_t leave)
{
    std::vector<Lease> closing;
    const std::lock_guard lock(m_mutex);
    while (m_open.size() > leave) {
        closing.push_back(std::move(m_open.front()->open));
        m_open.front()->open.reset();
        m_open.pop_front();
    }
}

} // namespace Korvane
