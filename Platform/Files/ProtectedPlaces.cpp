// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ProtectedPlaces.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Localized.h"

#include <algorithm>
#include <fcntl.h>

namespace Korvane {
namespace {

[[noreturn]] void refuse(const ItemPlace& item, std::errc code, const std::string& reason)
{
    throw FileError(item.path, std::make_error_code(code), filledIn(reason, { displayText(item.path) }));
}

} // namespace

ProtectedPlaces::ProtectedPlaces(const std::filesystem::path& home)
    : m_home(home)
{
    if (!home.is_absolute())
        return;
    for (std::filesystem::path place = home.lexically_normal(); place.has_relative_path();
         place = place.parent_path()) {
        if (place.has_filename())
            m_names.push_back(place.native());
    }
}

/// The home folder and what holds it by name: links on the way are protected as well as what they lead to.
void ProtectedPlaces::addNamedPlaces()
{
    for (const std::string& name : m_names) {
        EntryStatus status;
        if (readStatus(AT_FDCWD, name.c_str(), Links::NotFollowed, status) == 0)
            m_identities.push_back(status.identity);
    }
}

/// The home folder and what really holds it, from the folder upwards to the root.
void ProtectedPlaces::addFoldersAbove()
{
    FileDescriptor folder;
    if (m_names.empty() || openForTraversal(m_home.native(), folder) != 0)
        return;
    EntryIdentity below;
    EntryStatus status;
    while (readStatus(folder.get(), "", Links::NotFollowed, status) == 0 && !(status.identity == below)) {
        below = status.identity;
        m_identities.push_back(below);
        FileDescriptor above;
        if (openForTraversal(folder.get(), "..", Links::NotFollowed, above) != 0)
            return;
        folder = std::move(above);
    }
}

bool ProtectedPlaces::isNamed(const ItemPlace& item) const
{
    const std::string name
        = isPlainPath(item.path) ? item.path : std::filesystem::path(item.path).lexically_normal().native();
    return std::find(m_names.begin(), m_names.end(), name) != m_names.end();
}

bool ProtectedPlaces::isIdentical(const ItemPlace& item)
{
    // Nothing else than a folder, or a link in a home folder's path, can be one of these places.
    if (!item.status.isDirectory && !item.status.isLink)
        return false;
    if (m_identities.empty()) {
        addNamedPlaces();
        addFoldersAbove();
    }
    return std::find(m_identities.begin(), m_identities.end(), item.status.identity) != m_identities.end();
}

void ProtectedPlaces::check(const ItemPlace& item)
{
    if (isNamed(item) || isIdentical(item))
        refuse(item, std::errc::operation_not_permitted,
            localized("Errors", "“%1” is the home folder, or holds it, and is never removed."));
    if (item.parentStatus.leadsOffMountTo(item.status))
        refuse(item, std::errc::device_or_resource_busy,
            localized("Errors", "“%1” is where a volume is mounted, and is never removed."));
    if (item.status.isSharedSticky())
        refuse(item, std::errc::operation_not_permitted,
            localized("Errors", "“%1” is a folder shared by all users, and is never removed."));
}

} // namespace Korvane
