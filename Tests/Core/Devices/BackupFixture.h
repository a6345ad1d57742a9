// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackupRemoval.h"
#include "Core/Devices/IOSBackupScanner.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"

#include <memory>
#include <string>
#include <vector>

namespace Korvane {

/// Backups in a home of a test's own.
class BackupFixture : public ScanFixture {
protected:
    using Names = std::vector<std::string>;

    std::filesystem::path root() const { return home() / "Library/Application Support/MobileSync/Backup"; }
    std::filesystem::path backup(const std::string& name) const { return root() / name; }

    /// A property list of these members, which go into it as they stand.
    static std::string list(const std::string& members)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + members
            + "</dict></plist>\n";
    }
    static std::string named(const std::string& name)
    {
        return list("<key>Device Name</key><string>" + name + "</string>");
    }
    void describe(const std::string& name, const std::string& description) const
    {
        writeFile(backup(name) / "Info.plist", description);
    }

    std::vector<IOSBackup> scanBackups(const Cancellation& cancellation = {})
    {
        return IOSBackupScanner().scan(host(), {}, cancellation);
    }
    /// The names of the folders that a scan finds, in its order.
    Names folders()
    {
        Names names;
        for (const auto& found : scanBackups())
            names.push_back(found.url.filename());
        return names;
    }
    /// The one backup that a scan finds in this folder.
    IOSBackup backupAt(const std::string& name)
    {
        for (auto& found : scanBackups()) {
            if (found.url == backup(name))
                return found;
        }
        ADD_FAILURE() << name << " was not found";
        return IOSBackup(backup(name), "", std::nullopt, std::nullopt, 0);
    }
    /// What a scan makes of one backup with this description.
    IOSBackup described(const std::string& description)
    {
        describe("folder-name", description);
        return backupAt("folder-name");
    }

    /// From now on what files are asked for can be made to fail, and is written down.
    ForwardingFileManager& forwardFiles()
    {
        auto files = std::make_shared<ForwardingFileManager>(host().files);
        host().files = files;
        return *files;
    }
};

} // namespace Korvane
