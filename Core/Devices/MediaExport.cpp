// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/MediaExport.h"

#include "Core/Devices/AfcClient.h"
#include "Core/Devices/AfcListing.h"
#include "Core/Devices/AfcWords.h"
#include "Core/Devices/DevicePlaces.h"
#include "Core/Devices/ExportDestination.h"
#include "Core/Devices/MediaError.h"
#include "Core/Devices/PlainFolder.h"
#include "Platform/DisplayText.h"
#include "Platform/Localized.h"

#include <algorithm>
#include <iterator>

namespace Korvane {

namespace {

MediaError failureOf(const IOSMediaFile& file)
{
    return MediaError::afcFailed(
        filledIn(localized("Errors", "Export failed for %1"), { displayText(std::string_view(file.name)) }));
}

/// Whether the file can be asked for without naming another, and into this folder under its own name.
bool canBeAskedFor(
    const IOSMediaFile& file, const std::filesystem::path& directory, const std::vector<IOSMediaFolder>& listing)
{
    return file.path.starts_with('/') && ExportDestination::isName(file.name) && directory.is_absolute()
        && !DevicePlaces::around(file.path, listing).areNamedInPlaceOf(file.path);
}

bool fitsIntoScript(const std::string& command)
{
    return !holdsControlCharacter(command) && command.size() <= longestAfcCommand;
}

/// Whether the tool says that it opened no file of this computer, so that what lies there is somebody else's. What an
/// error repeats of the command does not count.
bool hasOpenedNothing(const AfcAnswer& answer, const IOSMediaFile& file, const std::filesystem::path& destination)
{
    if (answer.showsProgress())
        return false;
    std::vector<std::string> told{ file.path, destination.native() };
    const auto words = possibleWords(file.path + " " + destination.native());
    std::copy_if(words.begin(), words.end(), std::back_inserter(told),
        [](const std::string& word) { return word.find('/') != std::string::npos; });
    const auto errors = answer.errorsWithout(told);
    return std::any_of(errors.begin(), errors.end(), [](const std::string& error) {
        const auto says = [&](const char* text) { return error.find(text) != std::string::npos; };
        return says("Failed to open") || says("not found") || says("exist");
    });
}

void takeAway(const ExportDestination& destination, const IOSMediaFile& file, const Host& host)
{
    if (const auto refusal = destination.trashWhatLiesThere(*host.files))
        throw MediaError::afcFailed(filledIn(
            localized("Errors", "Export failed for %1; what lies there now could not be moved to the Trash: %2"),
            { displayText(std::string_view(file.name)), *refusal }));
}

/// Runs the tool; what a run leaves that does not come to its end does not stay.
AfcAnswer runCopy(const std::string& command, const ExportDestination& destination, const IOSMediaFile& file,
    const std::string& udid, const Host& host, const Cancellation& cancellation)
{
    try {
        return runAFC({ command }, udid, host, cancellation);
    } catch (...) {
        takeAway(destination, file, host);
        throw;
    }
}

} // namespace

void exportMediaFile(const IOSMediaFile& file, const std::string& udid, const std::filesystem::path& directory,
    const std::vector<IOSMediaFolder>& listing, const Host& host, const Cancellation& cancellation)
{
    if (!canBeAskedFor(file, directory, listing))
        throw failureOf(file);
    const PlainFolder plain(directory, host);
    const ExportDestination destination(file, directory, plain.path());
    const auto command = "get " + file.path + " " + destination.path().native();
    if (!fitsIntoScript(command) || !destination.isFree())
        throw failureOf(file);
    const auto answer = runCopy(command, destination, file, udid, host, cancellation);
    const bool isCalm = answer.ending() == AfcAnswer::Ending::Calm && answer.isWhole() && answer.errors().empty();
    if (isCalm && destination.hasArrived())
        return;
    if (!hasOpenedNothing(answer, file, destination.path()))
        takeAway(destination, file, host);
    throw failureOf(file);
}

} // namespace Korvane
