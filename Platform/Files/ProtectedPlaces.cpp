// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ProtectedPlaces.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"

#include <algorithm>
#include <fcntl.h>

namespace Korvane {
namespace {

[[noreturn]] void refuse(const ItemPlace& item, std::errc code, const std::string& reason)
{
    throw FileError(item.path, std::make_error_code(code), "“" + displayText(item.path) + "” " + reason);
}

} // namespace

ProtectedPlaces::ProtectedPlaces(const std::filesystem::path& home)
{
    if (!home.is_absolute())
        return;
    addNames(home);
    addFoldersAbove(home);
}

/// The home folder and what holds it by name: links on the way are protected as well as what they lead to.
void ProtectedPlaces::addNames(const std::filesystem::path& home)
{
    std::filesystem::path place = home.lexically_normal();
    for (; place.has_relative_path(); place = place.parent_path()) {
        if (!place.has_filename())
            continue;
        m_names.push_back(place.native());
        EntryStatus status;
        if (readStatus(AT_FDCWD, place.c_str(), Links::NotFollowed, status) == 0)
            m_identities.push_back(status.identity);
    }
}

/// The home folder and what really holds it, from the folder upwards to the root.
void ProtectedPlaces::addFoldersAbove(const std::filesystem::path& home)
{
    FileDescriptor folder;
    if (openForTraversal(home.native(), folder) != 0)
        return;
    EntryStatus status;
    while (readStatus(folder.get(), "", Links::NotFollowed, status) == 0) {
        if (!m_identities.empty() && m_identities.back() == status.identity)
            return;
        m_identities.push_back(status.identity);
        FileDescriptor above;
        if (openForTraversal(folder.get(), "..", Links::NotFollowed, above) != 0)
            return;
        folder = std::move(above);
    }
}

void ProtectedPlaces::check(const ItemPlace& item) const
{
    const auto holds
        = [](const auto& list, const auto& value) { return std::find(list.begin(), list.end(), value) != list.end(); };
    if (holds(m_names, item.path.lexically_normal().native()) || holds(m_identities, item.status.identity))
        refuse(item, std::errc::operation_not_permitted, "is the home folder, or holds it, and is never removed.");
    if (item.parentStatus.leadsOffMountTo(item.status))
        refuse(item, std::errc::device_or_resource_busy, "is where a volume is mounted, and is never removed.");
    if (item.status.isSharedSticky())
        refuse(item, std::errc::operation_not_permitted, "is a folder shared by all users, and is never removed.");
}

} // namespace Korvane
