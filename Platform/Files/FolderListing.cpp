// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderListing.h"

#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/FreedElsewhere.h"
#include "Platform/NameSet.h"
#include "Platform/TrailingSlashes.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <string_view>

namespace Korvane {
namespace {

/// The folder that a long path lies in and the name it has there, so that any length can be asked for.
int openParent(std::string_view path, FileDescriptor& parent, std::string& name)
{
    path = withoutTrailingSlashes(path);
    const std::size_t slash = path.rfind('/');
    name = path.substr(slash == std::string_view::npos ? 0 : slash + 1);
    if (name.empty())
        name = ".";
    return openForTraversal(
        slash == std::string_view::npos ? std::string_view(".") : path.substr(0, slash + 1), parent);
}

} // namespace

std::vector<std::filesystem::path> childrenOf(
    const std::filesystem::path& folder, HiddenFiles hidden, const Cancellation& cancellation)
{
    FileDescriptor parent;
    FileDescriptor opened;
    std::string name;
    int error = folder.empty() ? ENOENT : openParent(folder.native(), parent, name);
    if (error == 0)
        error = openFolder(parent.get(), name.c_str(), Links::Followed, opened);
    if (error != 0)
        throw FileError(folder, std::error_code(error, std::system_category()));
    OpenFolder open(std::move(opened));
    EntryBatch batch;
    // A folder that changes while it is read may list a name twice.
    FreedElsewhere<NameSet> known;
    FreedElsewhere<std::vector<std::filesystem::path>> children;
    do {
        cancellation.throwIfCancelled();
        if ((error = open.read(batch)) != 0)
            throw FileError(folder, std::error_code(error, std::system_category()));
        for (const EntryBatch::Entry& entry : batch.entries) {
            const bool isWanted = hidden == HiddenFiles::Included || !isHidden(open.descriptor(), entry.name);
            if (isWanted && known->insert(entry.name))
                children->push_back(folder / entry.name);
        }
    } while (!batch.entries.empty());
    return std::move(*children);
}

bool isAnythingAt(const std::filesystem::path& path)
{
    EntryStatus status;
    if (path.empty())
        return false;
    if (path.native().size() < PATH_MAX)
        return readStatus(AT_FDCWD, path.c_str(), Links::Followed, status) == 0;
    FileDescriptor parent;
    std::string name;
    return openParent(path.native(), parent, name) == 0
        && readStatus(parent.get(), name.c_str(), Links::Followed, status) == 0;
}

} // namespace Korvane
