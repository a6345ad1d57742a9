// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileError.h"
#include "Platform/Files/DoomedFolder.h"
#include "Platform/Files/EntryBatch.h"
#include "Platform/Files/FolderCache.h"
#include "Platform/Files/FolderQueue.h"
#include "Platform/Files/ItemPlace.h"
#include "Platform/Files/RemovalLimits.h"

#include <atomic>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Korvane {

/// Removes one folder tree, each entry relative to the open folder that holds it, so that nothing outside is touched
/// whatever is renamed or swapped for a link meanwhile.
///
/// Big trees are shared among threads. After the first error nothing new is begun, and folders whose permissions
/// were opened up get them back.
class TreeRemover {
public:
    /// `item` is a folder and outlives this.
    explicit TreeRemover(const ItemPlace& item);

    /// Removes the tree, once; the first error, with the path of what refused, when something is left of it.
    std::optional<FileError> run();

private:
    struct Worker {
        std::size_t number = 0;
        std::size_t removed = 0;
        std::size_t waits = 0; ///< Of its thread, before the first folder.
        EntryBatch batch;
        std::list<DoomedFolder> found;
    };
    enum class Reading { ToEnd, Paused, Failed };
    enum class Emptied { Gone, NotEmpty, Failed };

    void work(std::size_t number);
    void startHelpers(const Worker& worker);
    std::size_t workersFor(const Worker& worker) const;
    void process(Worker& worker, DoomedFolder& folder);
    bool open(DoomedFolder& folder, FolderCache::Lease& lease, bool& gone);
    int openRefused(DoomedFolder& folder, FolderCache::Lease& lease);
    Reading read(Worker& worker, DoomedFolder& folder, OpenFolder& open);
    bool removeEntry(Worker& worker, DoomedFolder& folder, OpenFolder& open, const char* name);
    void addFolder(Worker& worker, DoomedFolder& parent, const char* name);
    void publish(Worker& worker, DoomedFolder& parent);
    void climb(Worker& worker, DoomedFolder* folder, bool gone);
    Emptied removeEmptied(DoomedFolder& folder);
    void readAgain(Worker& worker, DoomedFolder& folder);

    bool openUp(DoomedFolder& folder, const OpenFolder& open);
    void restorePermissions();
    void fail(int error, const DoomedFolder& folder, const std::string& name = {});
    void failAtMount(const DoomedFolder& folder, const std::string& name = {});
    void fail(int error, const std::filesystem::path& path, const std::string& reason);
    std::filesystem::path pathOf(const DoomedFolder& folder, const std::string& name) const;

    const ItemPlace& m_item;
    const RemovalLimits m_limits;
    FolderCache m_cache;
    FolderQueue m_queue;
    DoomedFolder m_container;
    std::vector<std::thread> m_helpers;
    std::atomic<bool> m_stopped = false;
    std::mutex m_mutex;
    std::list<DoomedFolder> m_folders;
    std::optional<FileError> m_error;
};

} // namespace Korvane
