// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFile.h"
#include "Core/Devices/IOSMediaFolder.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace Korvane {

/// How many of so many folders have been listed. Called on the thread that lists.
using MediaProgress = std::function<void(std::size_t done, std::size_t folders)>;

/// Lists, copies and deletes the photos and videos of a device on the cable by the tool "afcclient", one run of it
/// after the other. Any thread but the main one, which every member would block for as long as the tool takes.
///
/// Every member throws MediaError when the tool is missing, before anything is started, FileError when it cannot be
/// started, and CancellationError.
class IOSMediaManager {
public:
    explicit IOSMediaManager(Host host);

    /// The folders of the camera roll that have files, in the order of the listing. Throws MediaError as well when the
    /// tool prints without end.
    std::vector<IOSMediaFolder> listMedia(
        const std::string& udid, const MediaProgress& progress = {}, const Cancellation& cancellation = {}) const;

    /// Deletes files for good, and returns those paths that are still on the device, in the given order.
    ///
    /// Left out, and still there, is a path whose words, as the tool takes them, name another place of `listing` or of
    /// `paths`, one that a script cannot hold, and one that a listing would not show as it is. A path counts as gone
    /// only when a listing that shows no error lacks it. A cancelled deletion may have deleted some.
    ///
    /// `proof` ends only the listings afterwards, which find out what is still there, and `cancellation` only the
    /// deletion itself; where one is given, it ends both.
    std::vector<std::string> remove(const std::vector<std::string>& paths, const std::string& udid,
        const std::vector<IOSMediaFolder>& listing, const Cancellation& cancellation, const Cancellation& proof) const;
    std::vector<std::string> remove(const std::vector<std::string>& paths, const std::string& udid,
        const std::vector<IOSMediaFolder>& listing, const Cancellation& cancellation = {}) const;

    /// Copies one file into a folder of this computer, an absolute path, under its own name. Throws MediaError "Export
    /// failed for " and the name unless all of it has arrived there.
    ///
    /// Nothing is replaced: where anything lies already, at the destination or where the tool might put the file by a
    /// misunderstanding, nothing is run. What lies there after a failed or cancelled copy goes to the Trash, unless the
    /// tool says that it opened nothing; MediaError also, and why, when it cannot. A file whose words name another
    /// place of `listing` is not copied. The tool finds any folder, whatever its path.
    void exportFile(const IOSMediaFile& file, const std::string& udid, const std::filesystem::path& directory,
        const std::vector<IOSMediaFolder>& listing, const Cancellation& cancellation = {}) const;

private:
    class Deletion;

    Host m_host;
};

} // namespace Korvane
