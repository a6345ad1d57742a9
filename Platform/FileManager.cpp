// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileManager.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/FolderListing.h"
#include "Platform/Files/HostPlaces.h"
#include "Platform/Files/ItemPlace.h"
#include "Platform/Files/ProtectedPlaces.h"
#include "Platform/Files/Removal.h"
#include "Platform/Files/Trash.h"
#include "Platform/Files/TrashRun.h"
#include "Platform/Localized.h"
#include "Platform/UserActionScope.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace Korvane {
namespace {

/// The file manager on the real disk; what differs between the hosts lies in Platform/Files.
class DiskFileManager final : public FileManager {
public:
    explicit DiskFileManager(Environment environment)
        : m_environment(std::move(environment))
    {
    }

    std::filesystem::path homeDirectoryForCurrentUser() const override { return m_environment.home; }
    std::filesystem::path temporaryDirectory() const override { return m_environment.temporaryDirectory; }

    std::vector<std::filesystem::path> additionalCacheDirectories() const override
    {
        return hostCacheDirectories(m_environment);
    }

    std::vector<std::filesystem::path> additionalTrashDirectories() const override
    {
        return hostTrashDirectories(m_environment);
    }

    bool fileExists(const std::filesystem::path& path) const override { return isAnythingAt(path); }

    std::vector<std::filesystem::path> contentsOfDirectory(
        const std::filesystem::path& folder, HiddenFiles hidden, const Cancellation& cancellation) const override
    {
        return childrenOf(folder, hidden, cancellation);
    }

    void removeItem(const std::filesystem::path& path) override
    {
        const UserActionScope action;
        const ItemPlace item = findRemovable(path);
        if (const auto failure = removeForGood(item))
            throw FileError(*failure);
    }

    std::filesystem::path trashItem(const std::filesystem::path& path) override
    {
        const UserActionScope action;
        if (const auto run = currentRun()) {
            const std::unique_lock lock(run->mutex, std::try_to_lock);
            if (lock)
                return trashIn(*run, path);
        }
        TrashRun run(m_environment.home);
        return trashIn(run, path);
    }

    std::shared_ptr<void> beginTrashing() override
    {
        const std::lock_guard lock(m_mutex);
        auto run = m_run.lock();
        if (!run)
            m_run = run = std::make_shared<TrashRun>(m_environment.home);
        return run;
    }

    void emptyTrash(const std::filesystem::path& trash) override
    {
        const UserActionScope action;
        const auto others = hostTrashDirectories(m_environment);
        ProtectedPlaces protectedPlaces(m_environment.home);
        if (trash == m_environment.home / ".Trash")
            emptyFolder(trash, protectedPlaces);
        else if (std::find(others.begin(), others.end(), trash) != others.end())
            emptyHostTrash(trash, protectedPlaces);
        else
            throw FileError(trash, std::make_error_code(std::errc::invalid_argument),
                filledIn(localized("Errors", "“%1” is not a Trash of this user."), { displayText(trash) }));
    }

private:
    ItemPlace findRemovable(const std::filesystem::path& path) const
    {
        ItemPlace item = findItem(path);
        ProtectedPlaces(m_environment.home).check(item);
        return item;
    }

    std::filesystem::path trashIn(TrashRun& run, const std::filesystem::path& path) const
    {
        ItemPlace item = findItem(path, std::exchange(run.parent, {}));
        run.protectedPlaces.forget();
        run.protectedPlaces.check(item);
        auto place = moveToHostTrash(item, m_environment, run.trash);
        run.parent = keepParent(item);
        return place;
    }

    std::shared_ptr<TrashRun> currentRun()
    {
        const std::lock_guard lock(m_mutex);
        return m_run.lock();
    }

    const Environment m_environment;
    std::mutex m_mutex;
    std::weak_ptr<TrashRun> m_run; ///< Guarded by m_mutex.
};

} // namespace

std::shared_ptr<FileManager> makeFileManager(const Environment& environment)
{
    return std::make_shared<DiskFileManager>(environment);
}

} // namespace Korvane
