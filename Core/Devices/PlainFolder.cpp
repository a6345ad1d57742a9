// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/PlainFolder.h"

#include "Core/Devices/AfcWords.h"
#include "Platform/Uuid.h"

#include <exception>
#include <system_error>

namespace Korvane {

PlainFolder::PlainFolder(const std::filesystem::path& folder, const Host& host)
    : m_files(host.files)
    , m_path(folder)
{
    const auto& temporaryDirectory = host.environment.temporaryDirectory;
    if (isPlainWord(folder.native()) || !isPlainWord(temporaryDirectory.native()))
        return;
    std::error_code error;
    const auto place = temporaryDirectory / ("korvane-" + Uuid::random().toString());
    if (!std::filesystem::create_directory(place, error))
        return;
    m_place = place;
    std::filesystem::permissions(m_place, std::filesystem::perms::owner_all, error);
    if (!error)
        std::filesystem::create_directory_symlink(folder, m_place / "folder", error);
    if (!error)
        m_path = m_place / "folder";
}

PlainFolder::~PlainFolder()
{
    if (m_place.empty())
        return;
    try {
        // The link is not followed; what holds it goes only when nothing else has come to lie there.
        const auto link = m_place / "folder";
        if (std::filesystem::is_symlink(std::filesystem::symlink_status(link)))
            m_files->removeItem(link);
        if (std::filesystem::is_empty(m_place))
            m_files->removeItem(m_place);
    } catch (const std::exception&) {
        // An empty folder of this user's in the temporary directory is all that stays.
    }
}

} // namespace Korvane
