// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileManager.h"

#include <functional>
#include <memory>
#include <vector>

namespace Korvane {

/// The real file manager with faults put in, writing down what it was asked to remove.
class ForwardingFileManager final : public FileManager {
public:
    using Path = std::filesystem::path;

    explicit ForwardingFileManager(std::shared_ptr<FileManager> real)
        : m_real(std::move(real))
    {
    }

    std::function<void(const Path&)> beforeListing; ///< May throw in place of the listing.
    std::function<void(const Path&)> beforeRemoving; ///< May throw in place of removing, trashing or emptying.
    std::function<Path()> home; ///< Another home than the real one.

    const std::vector<Path>& removed() const { return m_removed; }
    const std::vector<Path>& trashed() const { return m_trashed; }
    const std::vector<Path>& emptied() const { return m_emptied; }

    Path homeDirectoryForCurrentUser() const override { return home ? home() : m_real->homeDirectoryForCurrentUser(); }
    Path temporaryDirectory() const override { return m_real->temporaryDirectory(); }
    std::vector<Path> additionalCacheDirectories() const override { return m_real->additionalCacheDirectories(); }
    std::vector<Path> additionalTrashDirectories() const override { return m_real->additionalTrashDirectories(); }
    bool fileExists(const Path& path) const override { return m_real->fileExists(path); }

    std::vector<Path> contentsOfDirectory(
        const Path& folder, HiddenFiles hidden, const Cancellation& cancellation) const override
    {
        if (beforeListing)
            beforeListing(folder);
        return m_real->contentsOfDirectory(folder, hidden, cancellation);
    }
    void removeItem(const Path& path) override
    {
        prepare(path, m_removed);
        m_real->removeItem(path);
    }
    Path trashItem(const Path& path) override
    {
        prepare(path, m_trashed);
        return m_real->trashItem(path);
    }
    std::shared_ptr<void> beginTrashing() override { return m_real->beginTrashing(); }
    void emptyTrash(const Path& trash) override
    {
        prepare(trash, m_emptied);
        m_real->emptyTrash(trash);
    }

private:
    void prepare(const Path& path, std::vector<Path>& record) const
    {
        if (beforeRemoving)
            beforeRemoving(path);
        record.push_back(path);
    }

    std::shared_ptr<FileManager> m_real;
    std::vector<Path> m_removed;
    std::vector<Path> m_trashed;
    std::vector<Path> m_emptied;
};

} // namespace Korvane
