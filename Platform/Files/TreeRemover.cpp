// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/TreeRemover.h"

#include "Platform/Files/Retry.h"
#include "Platform/Files/ThreadWaits.h"
#include "Platform/UserActionScope.h"

#include <algorithm>
#include <fcntl.h>
#include <new>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Korvane {
namespace {

/// Subfolders remembered of one folder before they are removed and reading goes on: bounds memory, not the tree.
constexpr std::size_t foldersAtOnce = 4096;
/// Work that is worth a thread: entries already removed, and folders waiting.
constexpr std::size_t entriesBeforeHelp = 512;
constexpr std::size_t foldersBeforeHelp = 4;
/// A thread that sleeps once for so many entries, or more often, waits for a device.
constexpr std::size_t entriesToAWait = 16;
/// How often a folder may turn out not empty after its last entry was removed, while others put things into it.
constexpr unsigned mostPasses = 100;

} // namespace

TreeRemover::TreeRemover(const ItemPlace& item)
    : m_item(item)
    , m_limits(RemovalLimits::current())
    , m_cache(m_limits.openFolders)
    , m_queue(std::max(m_limits.workers, m_limits.waitingWorkers))
{
}

std::optional<FileError> TreeRemover::run()
{
    const int parent = retryInterrupted([&] { return dup(m_item.parent.get()); });
    if (parent < 0)
        return FileError(m_item.path, std::error_code(-parent, std::system_category()));
    m_container.status = m_item.parentStatus;
    m_cache.pin(m_container, std::make_shared<OpenFolder>(FileDescriptor(parent)));
    {
        Worker first;
        addFolder(first, m_container, m_item.name.c_str());
        publish(first, m_container);
    }
    work(0);
    for (std::thread& helper : m_helpers)
        helper.join();
    if (m_error)
        restorePermissions();
    return m_error;
}

void TreeRemover::work(std::size_t number)
{
    const UserActionScope action;
    try {
        Worker worker;
        worker.number = number;
        worker.waits = waitsOfThisThread();
        while (DoomedFolder* folder = m_queue.take(number)) {
            process(worker, *folder);
            m_queue.done();
        }
    } catch (const std::bad_alloc&) {
        fail(ENOMEM, m_container, m_item.name);
    }
}

void TreeRemover::startHelpers(const Worker& worker)
{
    if (worker.number != 0 || !m_helpers.empty() || worker.removed < entriesBeforeHelp
        || m_queue.waiting() < foldersBeforeHelp)
        return;
    try {
        for (const std::size_t workers = workersFor(worker); m_helpers.size() + 1 < workers;)
            m_helpers.emplace_back(&TreeRemover::work, this, m_helpers.size() + 1);
    } catch (const std::system_error&) {
        // Fewer threads, or none beside this one, do the same work.
    }
}

/// While a thread waits for a device another one may use its processor, and give the device its next work.
std::size_t TreeRemover::workersFor(const Worker& worker) const
{
    const std::size_t waits = waitsOfThisThread() - worker.waits;
    return waits * entriesToAWait >= worker.removed ? m_limits.waitingWorkers : m_limits.workers;
}

void TreeRemover::process(Worker& worker, DoomedFolder& folder)
{
    FolderCache::Lease lease;
    bool gone = false;
    if (!open(folder, lease, gone))
        return;
    if (gone) {
        climb(worker, &folder, true);
        return;
    }
    const Reading reading = read(worker, folder, *lease);
    lease.reset();
    if (reading == Reading::Failed)
        return;
    {
        const std::lock_guard lock(m_mutex);
        folder.readToEnd = reading == Reading::ToEnd;
        if (--folder.unfinished != 0)
            return;
    }
    if (reading == Reading::ToEnd)
        climb(worker, &folder, false);
    else
        readAgain(worker, folder);
}

/// Opens a folder to be read. `gone` when nothing is there any more, or what is there now was no folder and is removed.
bool TreeRemover::open(DoomedFolder& folder, FolderCache::Lease& lease, bool& gone)
{
    int error = folder.status ? m_cache.acquire(folder, lease) : m_cache.openFirst(folder, lease);
    if (error == EACCES && !folder.status)
        error = openRefused(folder, lease);
    if (error == ENOTDIR || error == ELOOP) {
        FolderCache::Lease above;
        error = m_cache.acquire(*folder.parent, above);
        if (error == 0)
            error = errorOf([&] { return unlinkat(above->descriptor(), folder.name.c_str(), 0); });
        gone = error == 0;
    }
    if (error == ENOENT && folder.parent != &m_container) {
        gone = true;
        return true;
    }
    if (error != 0) {
        fail(error, folder);
        return false;
    }
    if (!gone && folder.parent->status->leadsOffMountTo(*folder.status)) {
        failAtMount(folder);
        return false;
    }
    return true;
}

TreeRemover::Reading TreeRemover::read(Worker& worker, DoomedFolder& folder, OpenFolder& open)
{
    for (std::size_t found = 0; found < foldersAtOnce;) {
        if (const int error = open.read(worker.batch)) {
            fail(error, folder);
            return Reading::Failed;
        }
        if (worker.batch.entries.empty())
            return Reading::ToEnd;
        for (const EntryBatch::Entry& entry : worker.batch.entries) {
            if (m_stopped.load(std::memory_order_relaxed))
                return Reading::Failed;
            if (entry.kind == EntryBatch::Kind::Folder)
                addFolder(worker, folder, entry.name);
            else if (!removeEntry(worker, folder, open, entry.name))
                return Reading::Failed;
        }
        found += worker.found.size();
        publish(worker, folder);
        startHelpers(worker);
    }
    return Reading::Paused;
}

bool TreeRemover::removeEntry(Worker& worker, DoomedFolder& folder, OpenFolder& open, const char* name)
{
    ++worker.removed;
    for (bool isFirstTry = true;; isFirstTry = false) {
        const int error = errorOf([&] { return unlinkat(open.descriptor(), name, 0); });
        if (error == 0 || error == ENOENT)
            return true;
        if (error == EISDIR || error == EPERM) {
            EntryStatus status;
            if (readStatus(open.descriptor(), name, Links::NotFollowed, status) == 0 && status.isDirectory) {
                addFolder(worker, folder, name);
                return true;
            }
        }
        if (error == EBUSY)
            failAtMount(folder, name);
        if (error == EACCES && isFirstTry && openUp(folder, open))
            continue;
        fail(error, folder, name);
        return false;
    }
}

void TreeRemover::addFolder(Worker& worker, DoomedFolder& parent, const char* name)
{
    DoomedFolder& folder = worker.found.emplace_back();
    folder.name = name;
    folder.parent = &parent;
    folder.depth = parent.depth + 1;
    folder.self = std::prev(worker.found.end());
}

/// Hands the folders found in `parent` to whoever has time.
void TreeRemover::publish(Worker& worker, DoomedFolder& parent)
{
    if (worker.found.empty())
        return;
    std::vector<DoomedFolder*> folders;
    folders.reserve(worker.found.size());
    for (DoomedFolder& folder : worker.found)
        folders.push_back(&folder);
    {
        const std::lock_guard lock(m_mutex);
        parent.unfinished += folders.size();
        m_folders.splice(m_folders.end(), worker.found);
    }
    m_queue.push(worker.number, folders);
}

/// Removes the folder, which is empty now, and those above it that this was the last entry of.
void TreeRemover::climb(Worker& worker, DoomedFolder* folder, bool gone)
{
    for (; folder != &m_container; gone = false) {
        const Emptied emptied = gone ? Emptied::Gone : removeEmptied(*folder);
        if (emptied == Emptied::NotEmpty)
            readAgain(worker, *folder);
        if (emptied != Emptied::Gone)
            return;
        ++worker.removed;
        m_cache.drop(*folder);
        DoomedFolder* const parent = folder->parent;
        std::list<DoomedFolder> removed;
        {
            const std::lock_guard lock(m_mutex);
            removed.splice(removed.end(), m_folders, folder->self);
            if (--parent->unfinished != 0 || parent == &m_container)
                return;
        }
        if (!parent->readToEnd) {
            readAgain(worker, *parent);
            return;
        }
        folder = parent;
    }
}

TreeRemover::Emptied TreeRemover::removeEmptied(DoomedFolder& folder)
{
    FolderCache::Lease own;
    FolderCache::Lease above;
    int error = m_cache.acquire(folder, own);
    if (error == 0)
        error = m_cache.acquire(*folder.parent, above, own.get());
    const auto remove = [&] { return unlinkat(above->descriptor(), folder.name.c_str(), AT_REMOVEDIR); };
    if (error == 0)
        error = errorOf(remove);
    if (error == EACCES && above && openUp(*folder.parent, *above))
        error = errorOf(remove);
    // Somebody else may have been faster; that is looked up, for it is reported as done.
    EntryStatus left;
    const bool isGone = error == ENOENT && above
        && readStatus(above->descriptor(), folder.name.c_str(), Links::NotFollowed, left) == ENOENT;
    if (error == 0 || isGone)
        return Emptied::Gone;
    if ((error == ENOTEMPTY || error == EEXIST) && ++folder.passes < mostPasses) {
        error = own->rewind();
        if (error == 0)
            return Emptied::NotEmpty;
    }
    if (error == EBUSY)
        failAtMount(folder);
    fail(error, folder);
    return Emptied::Failed;
}

void TreeRemover::readAgain(Worker& worker, DoomedFolder& folder)
{
    {
        const std::lock_guard lock(m_mutex);
        folder.unfinished = 1;
        folder.readToEnd = false;
    }
    m_queue.push(worker.number, { &folder });
}

} // namespace Korvane
