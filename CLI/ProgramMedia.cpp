// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/FailureText.h"
#include "CLI/MediaReports.h"
#include "CLI/Program.h"
#include "CLI/StandardStreams.h"
#include "CLI/TerminalProgress.h"
#include "CLI/UsageError.h"
#include "Core/Devices/IOSDeviceManager.h"
#include "Core/Devices/IOSMediaManager.h"
#include "Platform/DisplayText.h"
#include "Platform/EnsureFolder.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Korvane {

namespace {

using Format = CommandLine::Format;

/// The files of these paths; every path has to be in the listing.
std::vector<IOSMediaFile> named(const CommandLine& line, const std::vector<IOSMediaFolder>& listing)
{
    std::unordered_map<std::string_view, const IOSMediaFile*> known;
    for (const auto& folder : listing) {
        for (const auto& file : folder.files)
            known.emplace(file.path, &file);
    }
    std::vector<IOSMediaFile> files;
    for (const auto& path : line.mediaPaths) {
        const auto found = known.find(path);
        if (found == known.end())
            throw UsageError("'" + displayText(std::string_view(path))
                + "' is not in the camera roll; 'korvane-cli media list' lists what is");
        files.push_back(*found->second);
    }
    return files;
}

/// Where the files are to go, as an absolute path. One that was named has to be there.
std::filesystem::path exportFolder(const CommandLine& line, const Host& host)
{
    if (!line.exportFolder)
        return host.environment.downloads();
    auto folder = std::filesystem::absolute(*line.exportFolder);
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        throw std::runtime_error(displayText(folder) + " is no folder");
    return folder;
}

/// Tells a device whose camera roll is empty from one that cannot be read, of which the tool lists nothing either.
/// Throws std::runtime_error for the latter; where "idevice_id" is missing, nobody can tell.
void requireDevice(const std::string& udid, const Host& host, const Cancellation& cancellation)
{
    const auto detection = IOSDeviceManager::detect(host, cancellation);
    if (detection.kind == IOSDeviceManager::DetectionResult::Kind::ToolsMissing)
        return;
    const auto device = std::find_if(detection.devices.begin(), detection.devices.end(),
        [&](const IOSDevice& candidate) { return candidate.udid == udid; });
    const auto name = "the device '" + displayText(std::string_view(udid)) + "'";
    if (device == detection.devices.end())
        throw std::runtime_error(name + " is not connected; 'korvane-cli devices' shows those that are");
    if (device->name.empty() && device->productVersion.empty())
        throw std::runtime_error(name + " cannot be read; unlock it and tap Trust on it");
}

} // namespace

std::vector<IOSMediaFolder> Program::scanMedia(const CommandLine& line) const
{
    TerminalProgress terminal;
    const auto show = [&](std::size_t done, std::size_t folders) {
        if (done < folders)
            terminal.showStep("Listing folder", done + 1, folders, "");
    };
    auto folders = IOSMediaManager(m_host).listMedia(line.device, show, m_cancellation);
    if (folders.empty())
        requireDevice(line.device, m_host, m_cancellation);
    return folders;
}

ExitStatus Program::listMedia(const CommandLine& line) const
{
    const auto folders = scanMedia(line);
    print(line.format == Format::Json ? mediaAsJson(folders) : mediaAsText(folders));
    return ExitStatus::Done;
}

/// File by file: one failure does not stop the rest, a cancel does.
MediaExportResult Program::exportEach(const CommandLine& line, const std::filesystem::path& folder) const
{
    const auto listing = scanMedia(line);
    const auto files = named(line, listing);
    if (!line.exportFolder)
        ensureFolder(folder);
    TerminalProgress terminal;
    MediaExportResult result{ folder, {}, {} };
    for (const auto& file : files) {
        const auto number = result.exported.size() + result.failures.size() + 1;
        terminal.showStep("Exporting", number, files.size(), displayText(std::string_view(file.name)));
        try {
            IOSMediaManager(m_host).exportFile(file, line.device, folder, listing, m_cancellation);
            result.exported.push_back(file);
        } catch (const CancellationError&) {
            return result;
        } catch (const std::exception& error) {
            result.failures.push_back({ file, failureText(error) });
        }
    }
    return result;
}

ExitStatus Program::exportMedia(const CommandLine& line) const
{
    const auto result = exportEach(line, exportFolder(line, m_host));
    print(line.format == Format::Json ? exportResultAsJson(result) : exportResultAsText(result));
    const auto done = result.exported.size() + result.failures.size();
    if (done < line.mediaPaths.size()) {
        StandardStreams::complain(
            "cancelled; " + std::to_string(line.mediaPaths.size() - done) + " files were not exported");
        return ExitStatus::Cancelled;
    }
    return result.failures.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

ExitStatus Program::deleteMedia(const CommandLine& line) const
{
    const bool isJson = line.format == Format::Json;
    const auto listing = scanMedia(line);
    named(line, listing);
    if (line.confirmation == CommandLine::Confirmation::Missing) {
        print(isJson ? deletionPlanAsJson(line.mediaPaths) : deletionPlanAsText(line.mediaPaths));
        return ExitStatus::Done;
    }
    m_cancellation.throwIfCancelled();
    std::vector<std::string> remaining;
    try {
        remaining = IOSMediaManager(m_host).remove(line.mediaPaths, line.device, listing, m_cancellation);
    } catch (const CancellationError&) {
        StandardStreams::complain(
            "cancelled; some files may have been deleted, 'korvane-cli media list' shows what is left");
        return ExitStatus::Cancelled;
    }
    const std::unordered_set<std::string_view> left(remaining.begin(), remaining.end());
    auto deleted = line.mediaPaths;
    std::erase_if(deleted, [&](const std::string& path) { return left.contains(path); });
    print(isJson ? deletionResultAsJson(deleted, remaining) : deletionResultAsText(deleted, remaining));
    return remaining.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

} // namespace Korvane
