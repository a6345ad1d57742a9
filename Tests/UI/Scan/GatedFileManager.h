// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileManager.h"

#include <QSemaphore>

#include <memory>
#include <utility>

namespace Korvane {

/// The real file manager, whose removals each wait until a test lets them through.
class GatedFileManager final : public FileManager {
public:
    explicit GatedFileManager(std::shared_ptr<FileManager> real)
        : m_real(std::move(real))
    {
    }

    QSemaphore arrived; ///< Released once for each removal that waits at the gate.
    QSemaphore gate; ///< Each removal takes one to go through.

    std::filesystem::path homeDirectoryForCurrentUser() const override { return m_real->homeDirectoryForCurrentUser(); }
    std::filesystem::path temporaryDirectory() const override { return m_real->temporaryDirectory(); }
    std::vector<std::filesystem::path> additionalCacheDirectories() const override
    {
        return m_real->additionalCacheDirectories();
    }
    std::vector<std::filesystem::path> additionalTrashDirectories() const override
    {
        return m_real->additionalTrashDirectories();
    }
    bool fileExists(const std::filesystem::path& path) const override { return m_real->fileExists(path); }
    std::vector<std::filesystem::path> contentsOfDirectory(
        const std::filesystem::path& folder, HiddenFiles hidden, const Cancellation& cancellation) const override
    {
        return m_real->contentsOfDirectory(folder, hidden, cancellation);
    }
    void removeItem(const std::filesystem::path& path) override
    {
        passGate();
        m_real->removeItem(path);
    }
    std::filesystem::path trashItem(const std::filesystem::path& path) override
    {
        passGate();
        return m_real->trashItem(path);
    }
    std::shared_ptr<void> beginTrashing() override { return m_real->beginTrashing(); }
    void emptyTrash(const std::filesystem::path& trash) override
    {
        passGate();
        m_real->emptyTrash(trash);
    }

private:
    void passGate()
    {
        arrived.release();
        gate.acquire();
    }

    std::shared_ptr<FileManager> m_real;
};

} // namespace Korvane
