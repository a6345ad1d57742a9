// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderContents.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/Removal.h"
#include "Platform/Files/Trash.h"
#include "Platform/Localized.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Korvane {

FolderContents::FolderContents(const std::filesystem::path& folder)
    : m_path(itemPath(folder))
{
    FileDescriptor parent;
    if (openForTraversal(m_path.parent_path().native(), parent) == 0)
        open(parent.get(), m_path.filename().c_str());
}

FolderContents::FolderContents(std::filesystem::path path, int parent, const char* name)
    : m_path(std::move(path))
{
    open(parent, name);
}

void FolderContents::open(int parent, const char* name)
{
    EntryStatus status;
    if (readStatus(parent, name, Links::NotFollowed, status) == 0 && status.isLink)
        throw FileError(m_path, std::make_error_code(std::errc::too_many_symbolic_link_levels),
            filledIn(localized("Errors", "“%1” is a link; what it leads to is left alone."), { displayText(m_path) }));
    FileDescriptor folder;
    if (openFolder(parent, name, Links::NotFollowed, folder) == 0
        && readStatus(folder.get(), "", Links::NotFollowed, m_status) == 0)
        m_folder = std::move(folder);
}

FolderContents FolderContents::inside(const std::string& name) const
{
    return { m_path / name, m_folder.get(), name.c_str() };
}

std::vector<std::string> FolderContents::names() const
{
    FileDescriptor own;
    std::vector<std::string> names;
    if (openFolder(m_folder.get(), ".", Links::NotFollowed, own) != 0)
        return names;
    OpenFolder folder(std::move(own));
    EntryBatch batch;
    while (folder.read(batch) == 0 && !batch.entries.empty()) {
        for (const EntryBatch::Entry& entry : batch.entries)
            names.emplace_back(entry.name);
    }
    return names;
}

void FolderContents::removeForGood(const std::string& name, ProtectedPlaces& protectedPlaces, Vanished vanished) const
{
    ItemPlace item;
    item.path = (m_path / name).native();
    item.name = name;
    item.parentStatus = m_status;
    int error = openForTraversal(m_folder.get(), ".", Links::NotFollowed, item.parent);
    if (error == 0)
        error = readStatus(m_folder.get(), name.c_str(), Links::NotFollowed, item.status);
    if (error == ENOENT && vanished == Vanished::Accepted)
        return;
    if (error != 0)
        throw FileError(item.path, std::error_code(error, std::system_category()));
    protectedPlaces.check(item);
    const auto failure = Korvane::removeForGood(item);
    if (failure && !(vanished == Vanished::Accepted && failure->code().value() == ENOENT))
        throw FileError(*failure);
}

void emptyFolder(const std::filesystem::path& folder, ProtectedPlaces& protectedPlaces)
{
    const FolderContents contents(folder);
    if (!contents)
        return;
    for (const std::string& name : contents.names())
        contents.removeForGood(name, protectedPlaces, FolderContents::Vanished::Refused);
}

} // namespace Korvane
