// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSBackupRemoval.h"

#include "Core/Devices/IOSBackupScanner.h"
#include "Platform/FileError.h"

#include <filesystem>
#include <system_error>

namespace Korvane {

namespace {

/// Whether a scan can have found it there: a record made otherwise must not send away whatever it names.
bool isInRoot(const std::filesystem::path& url, const Environment& environment)
{
    const auto name = url.filename();
    return !name.empty() && name != "." && name != ".." && url == IOSBackupScanner::backupRoot(environment) / name;
}

/// What keeps it from being a folder, or a link to one; no error when it is one.
std::error_code folderError(const std::filesystem::path& url)
{
    std::error_code error;
    const auto status = std::filesystem::status(url, error);
    if (std::filesystem::is_directory(status))
        return {};
    if (std::filesystem::exists(status))
        return std::make_error_code(std::errc::not_a_directory);
    return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
}

} // namespace

std::optional<std::string> removeBackup(const IOSBackup& backup, const Host& host)
{
    if (!isInRoot(backup.url, host.environment))
        return FileError(backup.url, std::make_error_code(std::errc::operation_not_permitted)).localizedDescription();
    if (const auto error = folderError(backup.url))
        return FileError(backup.url, error).localizedDescription();
    try {
        host.files->trashItem(backup.url);
        return std::nullopt;
    } catch (const FileError& error) {
        return error.localizedDescription();
    }
}

} // namespace Korvane
