// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/ExportDestination.h"

#include "Core/Devices/AfcListing.h"
#include "Core/Devices/AfcWords.h"
#include "Platform/FileAttributes.h"
#include "Platform/FileError.h"
#include "Platform/FileIdentity.h"
#include "Platform/FullVolume.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

bool isNothingAt(const std::filesystem::path& place)
{
    std::error_code error;
    return std::filesystem::symlink_status(place, error).type() == std::filesystem::file_type::not_found;
}

bool isFileAt(const std::filesystem::path& place)
{
    std::error_code error;
    return std::filesystem::symlink_status(place, error).type() == std::filesystem::file_type::regular;
}

/// The place itself, where it lies in a folder that has been lent another path.
std::filesystem::path realPlace(const std::filesystem::path& place, const std::filesystem::path& directory,
    const std::filesystem::path& plainDirectory)
{
    const auto inside = place.lexically_relative(plainDirectory);
    const bool isInside = !inside.empty() && *inside.begin() != "..";
    return isInside ? directory / inside : place;
}

} // namespace

ExportDestination::ExportDestination(
    const IOSMediaFile& file, const std::filesystem::path& directory, const std::filesystem::path& plainDirectory)
    : m_path(plainDirectory / file.name)
    , m_places{ directory / file.name }
{
    std::error_code error;
    const auto workingFolder = std::filesystem::current_path(error);
    for (const auto& word : possibleWords(file.path + " " + m_path.native())) {
        if (word != file.path && word != m_path.native())
            m_places.push_back(realPlace(workingFolder / word, directory, plainDirectory));
    }
}

bool ExportDestination::isName(const std::string& name)
{
    const bool isWayOut = name == "." || name == ".." || name == "...";
    return !name.empty() && !isWayOut && name.find('/') == std::string::npos && !holdsControlCharacter(name);
}

bool ExportDestination::isFree() const { return std::all_of(m_places.begin(), m_places.end(), isNothingAt); }

bool ExportDestination::hasArrived() const
{
    const auto& place = m_places.front();
    std::error_code error;
    if (!isFileAt(place) || std::filesystem::file_size(place, error) == 0 || error)
        return false;
    return !isVolumeFull(place.parent_path());
}

std::optional<std::string> ExportDestination::trashWhatLiesThere(FileManager& files) const
{
    std::optional<std::string> refusal;
    for (const auto& place : m_places) {
        const auto identity = identityOfItem(place);
        const bool mayBeOurs = isFileAt(place) && attributesOfItem(place).isOwnedByCurrentUser;
        if (!mayBeOurs || !identity || identity->linkCount != 1)
            continue;
        try {
            files.trashItem(place);
        } catch (const FileError& error) {
            refusal = error.localizedDescription();
        }
    }
    return refusal;
}

} // namespace Korvane
