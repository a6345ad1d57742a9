// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSMediaManager.h"

#include "Core/Devices/AfcClient.h"
#include "Core/Devices/AfcListing.h"
#include "Core/Devices/AfcWords.h"
#include "Core/Devices/DevicePlaces.h"
#include "Core/Devices/MediaError.h"
#include "Core/Devices/MediaExport.h"
#include "Platform/DisplayText.h"
#include "Platform/Localized.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

const std::string cameraRoll = "/DCIM";

void requireTool(const Host& host)
{
    if (!afcclientPath(host.environment))
        throw MediaError::toolMissing();
}

/// The names that a listing of a folder on the device shows; none when the tool cannot be asked for it.
std::vector<std::string> namesIn(
    const std::string& folder, const std::string& udid, const Host& host, const Cancellation& cancellation)
{
    const std::vector<std::string> commands{ "ls " + folder };
    if (commands.front().size() > longestAfcCommand)
        return {};
    const auto answer = runAFC(commands, udid, host, cancellation);
    if (answer.ending() == AfcAnswer::Ending::CutOff)
        throw MediaError::afcFailed(
            filledIn(localized("Errors", "The listing of %1 is too long"), { displayText(std::string_view(folder)) }));
    return credibleNames(parseNames(answer.text()), { commands.front(), "quit" });
}

/// Whether this listing has come from the device, and all of it. `hadPrompt` is whether the run before printed one.
bool isFromTheDevice(const AfcAnswer& listing, bool hadPrompt)
{
    const bool isAllOfIt = listing.ending() == AfcAnswer::Ending::Calm && listing.isWhole() && listing.isText();
    return isAllOfIt && (listing.hasPrompt() || !hadPrompt);
}

/// Whether all that a listing says is that there is no such folder, as when a device removes one with its last file.
/// Where the tool may have taken the folder's path for another, this tells nothing.
bool isOfMissingFolder(const AfcAnswer& listing, const std::string& folder)
{
    const auto errors = listing.errorsWithout({ folder });
    if (!isPlainWord(folder) || errors.size() != 1)
        return false;
    const auto says = [&](const char* text) { return errors.front().find(text) != std::string::npos; };
    return says("Object not found") || says("(8)") || says("No such file or directory");
}

/// Whether these names are the folder itself, by its path or its name alone, which the tool prints without an error
/// when the device does not let it read the folder.
bool areOfFolderItself(const std::vector<std::string>& names, const std::string& folder)
{
    return std::find(names.begin(), names.end(), folder) != names.end()
        || (names.size() == 1 && folder.ends_with("/" + names.front()));
}

/// The places that must not be named by mistake; empty when no path can be mistaken, for many are not made for nothing.
DevicePlaces placesAround(const std::vector<std::string>& paths, const std::vector<IOSMediaFolder>& listing)
{
    if (std::all_of(paths.begin(), paths.end(), isPlainWord))
        return DevicePlaces({});
    DevicePlaces places(listing);
    for (const auto& path : paths)
        places.add(path);
    return places;
}

} // namespace

/// One deletion on the way.
class IOSMediaManager::Deletion {
public:
    Deletion(const Host& host, const std::string& udid)
        : m_host(host)
        , m_udid(udid)
    {
    }

    /// Deletes the paths that can be given to the tool without naming another place, in one run.
    void run(const std::vector<std::string>& paths, const DevicePlaces& places, const Cancellation& cancellation)
    {
        std::vector<std::string> commands;
        for (const auto& path : paths) {
            auto command = "rm " + path;
            const bool isRefused = command.size() > longestAfcCommand || !isListedDevicePath(path);
            if (isRefused || places.areNamedInPlaceOf(path))
                continue;
            commands.push_back(std::move(command));
            m_sent.insert(path);
        }
        if (!commands.empty() || paths.empty())
            m_hadPrompt = runAFC(commands, m_udid, m_host, cancellation).hasPrompt();
    }

    /// Whether a path is gone; asks the device once for each folder.
    bool isGone(const std::string& path, const Cancellation& cancellation)
    {
        if (m_sent.count(path) == 0)
            return false;
        const auto folder = deviceFolderOf(path);
        auto known = m_remaining.find(folder);
        if (known == m_remaining.end())
            known = m_remaining.emplace(folder, remainingIn(folder, cancellation)).first;
        return known->second && known->second->count(path) == 0;
    }

private:
    using Paths = std::unordered_set<std::string>;

    /// The paths that a folder still has; nothing when the device did not tell.
    std::optional<Paths> remainingIn(const std::string& folder, const Cancellation& cancellation) const
    {
        const std::vector<std::string> commands{ "ls " + folder };
        const auto answer = runAFC(commands, m_udid, m_host, cancellation);
        if (!isFromTheDevice(answer, m_hadPrompt))
            return std::nullopt;
        const auto all = parseNames(answer.text());
        const auto names = credibleNames(all, { commands.front(), "quit" });
        const bool isListing
            = answer.errors().empty() && !areOfFolderItself(all, folder) && !areOfFolderItself(names, folder);
        if (!isListing && !(names.empty() && isOfMissingFolder(answer, folder)))
            return std::nullopt;
        Paths remaining;
        for (const auto& name : names)
            remaining.insert(folder + "/" + name);
        return remaining;
    }

    const Host& m_host;
    const std::string& m_udid;
    Paths m_sent;
    bool m_hadPrompt = false;
    std::unordered_map<std::string, std::optional<Paths>> m_remaining;
};

IOSMediaManager::IOSMediaManager(Host host)
    : m_host(std::move(host))
{
}

std::vector<IOSMediaFolder> IOSMediaManager::listMedia(
    const std::string& udid, const MediaProgress& progress, const Cancellation& cancellation) const
{
    auto names = namesIn(cameraRoll, udid, m_host, cancellation);
    const auto isDescription = [](const std::string& name) { return name.ends_with(".plist"); };
    names.erase(std::remove_if(names.begin(), names.end(), isDescription), names.end());
    std::vector<IOSMediaFolder> folders;
    for (std::size_t done = 0; done < names.size(); ++done) {
        if (progress)
            progress(done, names.size());
        cancellation.throwIfCancelled();
        IOSMediaFolder folder{ cameraRoll + "/" + names[done], names[done], {} };
        for (auto& name : namesIn(folder.path, udid, m_host, cancellation)) {
            auto path = folder.path + "/" + name;
            folder.files.push_back({ std::move(path), std::move(name) });
        }
        if (!folder.files.empty())
            folders.push_back(std::move(folder));
    }
    if (progress)
        progress(names.size(), names.size());
    return folders;
}

std::vector<std::string> IOSMediaManager::remove(const std::vector<std::string>& paths, const std::string& udid,
    const std::vector<IOSMediaFolder>& listing, const Cancellation& cancellation, const Cancellation& proof) const
{
    requireTool(m_host);
    Deletion deletion(m_host, udid);
    deletion.run(paths, placesAround(paths, listing), cancellation);
    std::vector<std::string> remaining;
    for (const auto& path : paths) {
        if (!deletion.isGone(path, proof))
            remaining.push_back(path);
    }
    return remaining;
}

std::vector<std::string> IOSMediaManager::remove(const std::vector<std::string>& paths, const std::string& udid,
    const std::vector<IOSMediaFolder>& listing, const Cancellation& cancellation) const
{
    return remove(paths, udid, listing, cancellation, cancellation);
}

void IOSMediaManager::exportFile(const IOSMediaFile& file, const std::string& udid,
    const std::filesystem::path& directory, const std::vector<IOSMediaFolder>& listing,
    const Cancellation& cancellation) const
{
    requireTool(m_host);
    exportMediaFile(file, udid, directory, listing, m_host, cancellation);
}

} // namespace Korvane
