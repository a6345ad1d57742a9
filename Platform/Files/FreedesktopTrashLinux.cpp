// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/FreedesktopTrash.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/OriginalPath.h"
#include "Platform/Files/Retry.h"
#include "Platform/Files/SystemErrorText.h"
#include "Platform/Localized.h"

#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

[[noreturn]] void failAt(const ItemPlace& item, int error, const std::filesystem::path& place)
{
    throw FileError(
        item.path, std::error_code(error, std::system_category()), systemErrorText(error) + ": " + displayText(place));
}

/// Opens a folder, after making it when it is missing. A link is not followed.
int openOrMake(int parent, const char* name, FileDescriptor& folder)
{
    int error = openFolder(parent, name, Links::NotFollowed, folder);
    if (error != ENOENT)
        return error;
    error = errorOf([&] { return mkdirat(parent, name, 0700); });
    if (error != 0 && error != EEXIST)
        return error;
    return openFolder(parent, name, Links::NotFollowed, folder);
}

/// Opens what is there of a path, from its end upwards; `missing` holds the names that are not there, the last first.
int openExisting(std::filesystem::path path, FileDescriptor& folder, std::vector<std::string>& missing)
{
    for (;;) {
        const int error = openForTraversal(path.native(), folder);
        if (error != ENOENT || !path.has_relative_path())
            return error;
        if (path.has_filename())
            missing.push_back(path.filename().native());
        path = path.parent_path();
    }
}

void refuseToHoldItself(const ItemPlace& item, const FileDescriptor& trash)
{
    if (!item.status.isDirectory)
        return;
    FileDescriptor folder;
    int error = openForTraversal(trash.get(), ".", Links::NotFollowed, folder);
    EntryIdentity last;
    for (;;) {
        EntryStatus status;
        if (error == 0)
            error = readStatus(folder.get(), "", Links::NotFollowed, status);
        if (error != 0)
            failAt(item, error, item.path);
        if (status.identity == last)
            return;
        if (status.identity == item.status.identity)
            throw FileError(item.path, std::make_error_code(std::errc::invalid_argument),
                filledIn(localized("Errors", "“%1” holds the Trash, and cannot be moved into it."),
                    { displayText(item.path) }));
        last = status.identity;
        FileDescriptor above;
        error = openForTraversal(folder.get(), "..", Links::NotFollowed, above);
        folder = std::move(above);
    }
}

void openParts(const ItemPlace& item, FreedesktopTrash& trash)
{
    if (const int error = openOrMake(trash.folder.get(), "files", trash.files))
        failAt(item, error, trash.path / "files");
    if (const int error = openOrMake(trash.folder.get(), "info", trash.info))
        failAt(item, error, trash.path / "info");
}

/// The top folder of the volume that the item lies on, reached from the folder it lies in.
void openTop(const ItemPlace& item, FileDescriptor& top)
{
    EntryStatus status = item.parentStatus;
    int error = openForTraversal(item.parent.get(), ".", Links::NotFollowed, top);
    while (error == 0 && !status.isMountRoot) {
        FileDescriptor above;
        EntryStatus aboveStatus;
        error = openForTraversal(top.get(), "..", Links::NotFollowed, above);
        if (error == 0)
            error = readStatus(above.get(), "", Links::NotFollowed, aboveStatus);
        const bool leaves = aboveStatus.mount != status.mount || aboveStatus.identity.device != status.identity.device;
        if (error != 0 || leaves || aboveStatus.identity == status.identity)
            break;
        top = std::move(above);
        status = aboveStatus;
    }
    if (error != 0)
        failAt(item, error, item.path);
}

bool areOnOneMount(const EntryStatus& left, const EntryStatus& right)
{
    return left.identity.device == right.identity.device && left.mount == right.mount;
}

bool isOnVolumeOf(const ItemPlace& item, const FileDescriptor& folder)
{
    EntryStatus status;
    return readStatus(folder.get(), "", Links::NotFollowed, status) == 0 && areOnOneMount(status, item.parentStatus);
}

/// Fills in by what its folders are known again; false for a Trash put together from several mounts.
bool rememberFolders(FreedesktopTrash& trash)
{
    EntryStatus status;
    return readStatus(trash.folder.get(), "", Links::NotFollowed, status) == 0
        && readStatus(trash.files.get(), "", Links::NotFollowed, trash.filesStatus) == 0
        && readStatus(trash.info.get(), "", Links::NotFollowed, trash.infoStatus) == 0
        && areOnOneMount(status, trash.filesStatus) && areOnOneMount(status, trash.infoStatus);
}

/// Whether opening this Trash again would open the very folders that are open: "files" by its path, and "info" beside
/// it.
bool isStillThere(const FreedesktopTrash& trash)
{
    const auto isSame = [](int folder, const std::string& name, const EntryStatus& known) {
        EntryStatus status;
        return readStatus(folder, name.c_str(), Links::NotFollowed, status) == 0 && status.identity == known.identity
            && status.mount == known.mount;
    };
    return isSame(AT_FDCWD, trash.path.native() + "/files", trash.filesStatus)
        && isSame(trash.files.get(), "../info", trash.infoStatus);
}

std::shared_ptr<FreedesktopTrash> openHomeTrashAnew(const ItemPlace& item, const Environment& environment)
{
    auto trash = std::make_shared<FreedesktopTrash>();
    trash->path = environment.dataHome() / "Trash";
    std::vector<std::string> missing;
    int error = openExisting(trash->path, trash->folder, missing);
    if (error != 0 || !isOnVolumeOf(item, trash->folder))
        return nullptr;
    refuseToHoldItself(item, trash->folder);
    for (; error == 0 && !missing.empty(); missing.pop_back()) {
        FileDescriptor next;
        error = openOrMake(trash->folder.get(), missing.back().c_str(), next);
        trash->folder = std::move(next);
    }
    if (error != 0)
        failAt(item, error, trash->path);
    openParts(item, *trash);
    return trash;
}

bool isOwn(const FileDescriptor& folder)
{
    EntryStatus status;
    return readStatus(folder.get(), "", Links::NotFollowed, status) == 0 && status.owner == geteuid();
}

/// ".Trash/$uid", when ".Trash" is what an administrator makes it: a real folder with the sticky bit.
bool openSharedTrash(const FileDescriptor& top, const std::string& user, FileDescriptor& folder)
{
    FileDescriptor shared;
    EntryStatus status;
    if (openFolder(top.get(), ".Trash", Links::NotFollowed, shared) != 0
        || readStatus(shared.get(), "", Links::NotFollowed, status) != 0 || (status.mode & S_ISVTX) == 0)
        return false;
    return openOrMake(shared.get(), user.c_str(), folder) == 0 && isOwn(folder);
}

} // namespace

std::shared_ptr<FreedesktopTrash> openHomeTrash(
    const ItemPlace& item, const Environment& environment, std::shared_ptr<FreedesktopTrash>& kept)
{
    std::shared_ptr<FreedesktopTrash> trash;
    if (kept && isStillThere(*kept)) {
        if (!areOnOneMount(kept->filesStatus, item.parentStatus))
            return nullptr;
        refuseToHoldItself(item, kept->files);
        trash = kept;
    } else {
        kept = nullptr;
        trash = openHomeTrashAnew(item, environment);
        if (trash && rememberFolders(*trash))
            kept = trash;
    }
    if (trash)
        trash->recordedPath = originalPath(item);
    return trash;
}

FreedesktopTrash openVolumeTrash(const ItemPlace& item)
{
    FreedesktopTrash trash;
    FileDescriptor top;
    openTop(item, top);
    const std::filesystem::path topPath = pathOfFolder(top.get());
    const std::string user = std::to_string(geteuid());
    trash.path = topPath / ".Trash" / user;
    if (!openSharedTrash(top, user, trash.folder)) {
        trash.folder.close();
        const std::string name = ".Trash-" + user;
        trash.path = topPath / name;
        const int error = openOrMake(top.get(), name.c_str(), trash.folder);
        if (error == ENOTDIR || error == ELOOP || (error == 0 && !isOwn(trash.folder)))
            throw FileError(item.path, std::make_error_code(std::errc::operation_not_permitted),
                filledIn(localized("Errors", "“%1”, the Trash of this volume, is not a folder of this user."),
                    { displayText(trash.path) }));
        if (error != 0)
            failAt(item, error, trash.path);
    }
    refuseToHoldItself(item, trash.folder);
    openParts(item, trash);
    trash.recordedPath = originalPathBelow(item, top.get());
    return trash;
}

} // namespace Korvane
