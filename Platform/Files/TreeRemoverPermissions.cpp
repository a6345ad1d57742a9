// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DisplayText.h"
#include "Platform/Files/Retry.h"
#include "Platform/Files/SystemErrorText.h"
#include "Platform/Files/TreeRemover.h"
#include "Platform/Localized.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

/// Gives this user, when the folder is theirs, the right to change it; false when it is as it was. True as well when
/// another thread did so after this one was refused.
bool TreeRemover::openUp(DoomedFolder& folder, const OpenFolder& open)
{
    const std::lock_guard lock(m_mutex);
    if (folder.openedUp)
        return true;
    if (&folder == &m_container || folder.status->owner != geteuid())
        return false;
    const auto mode = static_cast<mode_t>(folder.status->mode | 0700U);
    folder.openedUp = mode != folder.status->mode && errorOf([&] { return fchmod(open.descriptor(), mode); }) == 0;
    return folder.openedUp;
}

/// Opens a folder that its parent, or its own permissions, kept closed.
int TreeRemover::openRefused(DoomedFolder& folder, FolderCache::Lease& lease)
{
    FolderCache::Lease above;
    if (const int error = m_cache.acquire(*folder.parent, above))
        return error;
    openUp(*folder.parent, *above);
    EntryStatus status;
    if (const int error = readStatus(above->descriptor(), folder.name.c_str(), Links::NotFollowed, status))
        return error;
    if (folder.parent->status->leadsOffMountTo(status))
        return EBUSY;
    const char* const name = folder.name.c_str();
    const bool isClosed = status.isDirectory && status.owner == geteuid() && (status.mode & 0700U) != 0700U;
    if (isClosed && changeModeOfClosedFolder(above->descriptor(), name, status.identity, status.mode | 0700U) != 0)
        return EACCES;
    const int error = m_cache.openFirst(folder, lease);
    if (isClosed && folder.status) {
        const std::lock_guard lock(m_mutex);
        folder.status->mode = status.mode;
        folder.openedUp = true;
    } else if (isClosed) {
        changeModeOfClosedFolder(above->descriptor(), name, status.identity, status.mode);
    }
    return error;
}

/// Deepest folders first, for a folder that is closed again can no longer be passed through.
void TreeRemover::restorePermissions()
{
    std::vector<DoomedFolder*> folders;
    for (DoomedFolder& folder : m_folders) {
        if (folder.status)
            folders.push_back(&folder);
    }
    const auto isDeeper
        = [](const DoomedFolder* left, const DoomedFolder* right) { return left->depth > right->depth; };
    std::stable_sort(folders.begin(), folders.end(), isDeeper);
    for (DoomedFolder* folder : folders) {
        FolderCache::Lease lease;
        if (m_cache.acquire(*folder, lease) != 0)
            continue;
        FolderCache::Lease above;
        m_cache.acquire(*folder->parent, above, lease.get());
        if (folder->openedUp)
            fchmod(lease->descriptor(), static_cast<mode_t>(folder->status->mode));
    }
}

void TreeRemover::fail(int error, const DoomedFolder& folder, const std::string& name)
{
    const std::filesystem::path path = pathOf(folder, name);
    fail(error, path, systemErrorText(error));
}

void TreeRemover::failAtMount(const DoomedFolder& folder, const std::string& name)
{
    fail(EBUSY, pathOf(folder, name), localized("Errors", "A volume is mounted inside"));
}

void TreeRemover::fail(int error, const std::filesystem::path& path, const std::string& reason)
{
    const bool isItem = path == m_item.path;
    const std::string description = isItem ? reason : reason + ": " + displayText(path);
    const std::lock_guard lock(m_mutex);
    if (!m_error)
        m_error.emplace(path, std::error_code(error, std::system_category()), description);
    m_stopped.store(true, std::memory_order_relaxed);
    m_queue.stop();
}

std::filesystem::path TreeRemover::pathOf(const DoomedFolder& folder, const std::string& name) const
{
    std::vector<const std::string*> parts;
    if (!name.empty())
        parts.push_back(&name);
    for (const DoomedFolder* step = &folder; step != &m_container && step->parent != &m_container; step = step->parent)
        parts.push_back(&step->name);
    std::string text = m_item.path;
    if (&folder == &m_container)
        return m_item.path;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
        text += '/' + **part;
    return text;
}

} // namespace Korvane
