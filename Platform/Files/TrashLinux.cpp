// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/CarefulRename.h"
#include "Platform/Files/FreedesktopTrash.h"
#include "Platform/Files/Trash.h"
#include "Platform/Files/TrashInfo.h"
#include "Platform/Files/TrashRecord.h"

#include <climits>
#include <ctime>
#include <random>
#include <unistd.h>

namespace Korvane {
namespace {

/// Names tried in turn ("name", "name.2", "name.3" ...), and after them names with a random number.
constexpr unsigned namesInTurn = 32;
constexpr unsigned randomNames = 64;

/// How long a name may be so that its record's name still fits the file system of `folder`.
std::size_t longestName(int folder, const std::string& name)
{
    constexpr std::size_t ending = sizeof ".trashinfo" - 1;
    constexpr std::size_t everywhere = 64;
    constexpr std::size_t number = 16; // At most, with its dot.
    if (name.size() + number + ending <= everywhere)
        return everywhere - ending;
    const long limit = fpathconf(folder, _PC_NAME_MAX);
    return (limit > long{ everywhere } ? static_cast<std::size_t>(limit) : std::size_t{ NAME_MAX }) - ending;
}

std::string candidate(const std::string& name, unsigned attempt, std::size_t limit)
{
    std::string ending;
    if (attempt >= namesInTurn) {
        static thread_local std::random_device random;
        ending = "." + std::to_string(random());
    } else if (attempt > 0) {
        ending = "." + std::to_string(attempt + 1);
    }
    return shortenedName(name, limit - ending.size()) + ending;
}

/// Makes sure that an item in the Trash has its record, which somebody who emptied the Trash may just have removed.
int keepRecord(const ItemPlace& item, const FreedesktopTrash& trash, TrashRecord& record, const std::string& text)
{
    if (!record.isGone() || !isItemAt(item, trash.files.get(), record.name()))
        return 0;
    const int error = record.write(text);
    if (error == 0 || !isItemAt(item, trash.files.get(), record.name()))
        return 0;
    ItemPlace inTrash;
    inTrash.name = record.name();
    inTrash.status = item.status;
    inTrash.parent = FileDescriptor(dup(trash.files.get()));
    return renameCarefully(inTrash, item.parent.get(), item.name) == 0 ? error : 0;
}

int moveAs(const ItemPlace& item, const FreedesktopTrash& trash, TrashRecord& record, const std::string& text)
{
    if (const int error = record.write(text))
        return error;
    if (const int error = renameCarefully(item, trash.files.get(), record.name())) {
        record.takeBack();
        return error;
    }
    return keepRecord(item, trash, record, text);
}

} // namespace

std::filesystem::path moveToTrash(const ItemPlace& item, const FreedesktopTrash& trash)
{
    const std::string text = trashInfoText(trash.recordedPath, std::time(nullptr));
    const std::size_t limit = longestName(trash.info.get(), item.name);
    int error = EEXIST;
    for (unsigned attempt = 0; error == EEXIST && attempt < namesInTurn + randomNames; ++attempt) {
        TrashRecord record(trash.info.get(), candidate(item.name, attempt, limit));
        error = moveAs(item, trash, record, text);
        if (error == 0)
            return trash.path.native() + "/files/" + record.name();
    }
    throw FileError(item.path, std::error_code(error, std::system_category()));
}

std::vector<std::filesystem::path> hostTrashDirectories(const Environment& environment)
{
    return { environment.dataHome() / "Trash" };
}

std::filesystem::path moveToHostTrash(
    const ItemPlace& item, const Environment& environment, std::shared_ptr<FreedesktopTrash>& kept)
{
    if (const auto trash = openHomeTrash(item, environment, kept)) {
        try {
            return moveToTrash(item, *trash);
        } catch (const FileError& error) {
            // Within one file system there are borders as well, which only the attempt to cross them shows.
            if (error.code().value() != EXDEV)
                throw;
        }
    }
    return moveToTrash(item, openVolumeTrash(item));
}

} // namespace Korvane
