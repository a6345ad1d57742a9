// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/MediaReports.h"

#include "Platform/DisplayText.h"

namespace Korvane {

namespace {

std::string counted(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string shown(const std::string& bytes) { return displayText(std::string_view(bytes)); }

std::string listOf(const std::vector<std::string>& paths)
{
    std::string text;
    for (const auto& path : paths)
        text += "  " + shown(path) + "\n";
    return text;
}

} // namespace

std::string mediaAsText(const std::vector<IOSMediaFolder>& folders)
{
    if (folders.empty())
        return "No media found in the camera roll.\n";
    std::string text;
    std::size_t count = 0;
    for (const auto& folder : folders) {
        text += shown(folder.name) + "  " + counted(folder.files.size(), "file") + "\n";
        for (const auto& file : folder.files)
            text += "  " + shown(file.path) + "\n";
        count += folder.files.size();
    }
    return text + "\nTotal: " + counted(count, "file") + " in " + counted(folders.size(), "folder") + "\n";
}

std::string exportResultAsText(const MediaExportResult& result)
{
    std::string text;
    for (const auto& failure : result.failures)
        text += shown(failure.file.path) + ": " + shown(failure.message) + "\n";
    text += "Exported " + counted(result.exported.size(), "file") + " to " + displayText(result.folder);
    return text + (result.failures.empty() ? "" : ", " + std::to_string(result.failures.size()) + " failed") + "\n";
}

std::string deletionPlanAsText(const std::vector<std::string>& paths)
{
    return "Would be deleted from the device for good:\n" + listOf(paths) + "\n" + counted(paths.size(), "file")
        + ". Nothing has been changed; --yes does it.\n";
}

std::string deletionResultAsText(const std::vector<std::string>& deleted, const std::vector<std::string>& remaining)
{
    const auto text = "Deleted " + counted(deleted.size(), "file");
    if (remaining.empty())
        return text + "\n";
    return text + ", " + std::to_string(remaining.size()) + " failed\nStill on the device:\n" + listOf(remaining);
}

} // namespace Korvane
