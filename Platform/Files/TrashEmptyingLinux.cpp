// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Platform/Files/FolderContents.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/Retry.h"
#include "Platform/Files/Trash.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <string_view>
#include <thread>
#include <unistd.h>

namespace Korvane {
namespace {

constexpr std::string_view recordEnding = ".trashinfo";
/// A record without its item is the remains of an interrupted move, or the beginning of one that takes place now.
/// Only after this many seconds it is taken for remains.
constexpr std::time_t secondsOfGrace = 2;

int removeRecord(int info, const std::string& name)
{
    const int error = errorOf([&] { return unlinkat(info, name.c_str(), 0); });
    return error == ENOENT ? 0 : error;
}

[[noreturn]] void failAt(const std::filesystem::path& path, int error)
{
    throw FileError(path, std::error_code(error, std::system_category()));
}

bool isRemains(int info, const std::string& name)
{
    EntryStatus status;
    return readStatus(info, name.c_str(), Links::NotFollowed, status) == 0
        && std::time(nullptr) - status.modified >= secondsOfGrace;
}

/// Deletes the items, and each one's record once it is gone.
void emptyFiles(const FolderContents& files, const FolderContents& info, ProtectedPlaces& protectedPlaces)
{
    for (const std::string& name : files.names()) {
        files.removeForGood(name, protectedPlaces, FolderContents::Vanished::Accepted);
        const std::string record = name + std::string(recordEnding);
        if (const int error = info ? removeRecord(info.descriptor(), record) : 0)
            failAt(info.path() / record, error);
    }
}

/// Deletes the records that no item belongs to.
void emptyRecords(const FolderContents& files, const FolderContents& info, ProtectedPlaces& protectedPlaces)
{
    const auto hasItem = [&](const std::string& name) {
        EntryStatus status;
        return files && name.ends_with(recordEnding)
            && readStatus(files.descriptor(), name.substr(0, name.size() - recordEnding.size()).c_str(),
                   Links::NotFollowed, status)
            == 0;
    };
    std::vector<std::string> names = info.names();
    const auto isFresh = [&](const std::string& name) { return !hasItem(name) && !isRemains(info.descriptor(), name); };
    if (std::any_of(names.begin(), names.end(), isFresh))
        std::this_thread::sleep_for(std::chrono::seconds(secondsOfGrace));
    for (const std::string& name : names) {
        if (!hasItem(name))
            info.removeForGood(name, protectedPlaces, FolderContents::Vanished::Accepted);
    }
}

} // namespace

void emptyHostTrash(const std::filesystem::path& trash, ProtectedPlaces& protectedPlaces)
{
    const FolderContents folder(trash);
    if (!folder)
        return;
    const FolderContents files = folder.inside("files");
    const FolderContents info = folder.inside("info");
    const FolderContents expunged = folder.inside("expunged");
    if (files)
        emptyFiles(files, info, protectedPlaces);
    if (info)
        emptyRecords(files, info, protectedPlaces);
    if (expunged) {
        for (const std::string& name : expunged.names())
            expunged.removeForGood(name, protectedPlaces, FolderContents::Vanished::Accepted);
    }
    if (const int error = removeRecord(folder.descriptor(), "directorysizes"))
        failAt(trash / "directorysizes", error);
}

} // namespace Korvane
