// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Cleaning/Cleaner.h"

#include "Platform/Checked.h"
#include "Platform/FileAttributes.h"
#include "Platform/FileError.h"

#include <exception>
#include <optional>
#include <string>

namespace Korvane {

namespace {

/// The Trash folders of the user, as the plain path texts that items are compared with.
struct TrashFolders {
    std::filesystem::path user;
    std::vector<std::filesystem::path> additional;

    explicit TrashFolders(const FileManager& files)
        : user(files.homeDirectoryForCurrentUser() / ".Trash")
        , additional(files.additionalTrashDirectories())
    {
    }
};

std::vector<std::filesystem::path> childrenOfTrash(const std::filesystem::path& trash, const FileManager& files)
{
    try {
        return files.contentsOfDirectory(trash);
    } catch (const FileError&) {
        // A Trash that cannot be listed counts as empty.
        return {};
    }
}

void emptyTrash(const std::filesystem::path& trash, const TrashFolders& folders, FileManager& files)
{
    // A link in place of the user's Trash is refused there: what it leads to was never thrown away.
    if (trash.native() != folders.user.native() || attributesOfItem(trash).isLink) {
        files.emptyTrash(trash);
        return;
    }
    for (const auto& child : childrenOfTrash(trash, files))
        files.removeItem(child);
}

/// What a Trash folder makes of an item, or nothing when the item has no part in it.
std::optional<Cleaner::Action> actionOfTrash(const std::string& trash, const std::string& path)
{
    if (path == trash)
        return Cleaner::Action::EmptyTrash;
    // A folder's own path with a slash behind it is neither the folder's text nor that of something inside.
    const bool isInside
        = path.size() > trash.size() + 1 && path.compare(0, trash.size(), trash) == 0 && path[trash.size()] == '/';
    if (isInside)
        return Cleaner::Action::Delete;
    return std::nullopt;
}

Cleaner::Action actionFor(const std::filesystem::path& url, bool moveToTrash, const TrashFolders& folders)
{
    if (const auto action = actionOfTrash(folders.user.native(), url.native()))
        return *action;
    for (const auto& trash : folders.additional) {
        if (const auto action = actionOfTrash(trash.native(), url.native()))
            return *action;
    }
    return moveToTrash ? Cleaner::Action::MoveToTrash : Cleaner::Action::Delete;
}

void cleanItem(const std::filesystem::path& url, bool moveToTrash, const TrashFolders& folders, FileManager& files)
{
    switch (actionFor(url, moveToTrash, folders)) {
    case Cleaner::Action::EmptyTrash:
        emptyTrash(url, folders, files);
        return;
    case Cleaner::Action::Delete:
        files.removeItem(url);
        return;
    case Cleaner::Action::MoveToTrash:
        (void)files.trashItem(url);
        return;
    }
}

} // namespace

Cleaner::Action Cleaner::action(const std::filesystem::path& url, bool moveToTrash, const FileManager& files)
{
    return actionFor(url, moveToTrash, TrashFolders(files));
}

Cleaner::Result Cleaner::clean(const std::vector<ScanItem>& items, bool moveToTrash, FileManager& files)
{
    const TrashFolders folders(files);
    const auto run = moveToTrash ? files.beginTrashing() : nullptr;
    Result result;
    for (const auto& item : items) {
        try {
            cleanItem(item.url, moveToTrash, folders, files);
        } catch (const FileError& error) {
            result.failures.push_back({ item.url, error.localizedDescription() });
            continue;
        } catch (const std::exception& error) {
            result.failures.push_back({ item.url, error.what() });
            continue;
        }
        result.cleanedBytes = checkedAdd(result.cleanedBytes, item.sizeInBytes);
        result.cleanedCount = checkedAdd(result.cleanedCount, 1);
    }
    return result;
}

} // namespace Korvane
