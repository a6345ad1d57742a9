// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Tests/Support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// Devices that a test plays by the tools that talk to them: each is a folder, with its camera roll in "DCIM".
///
/// A tool does not go on while it is held. The media tool refuses what its device refuses, and says so as the real one
/// does: in a line of its output.
class StandInDevices {
public:
    /// Keeps the devices, and what the tools were asked for, in `folder`.
    StandInDevices(const Environment& environment, std::filesystem::path folder);

    /// Plugs a device in, the last of those that are.
    void connect(const std::string& udid, const std::string& name, const std::string& total = "128000000000",
        const std::string& free = "28000000000") const;
    void unplugAll() const { writeFile(m_folder / "connected", ""); }
    /// What `path` in the camera roll is, "100APPLE/IMG_0001.HEIC".
    std::filesystem::path media(const std::string& udid, const std::string& path) const
    {
        return m_folder / udid / "DCIM" / path;
    }
    void addMedia(const std::string& udid, const std::string& path) const { writeFile(media(udid, path), path); }
    /// From now on every device says that its camera roll has folders of these names, and each of them these files.
    void claim(const std::string& folders, const std::string& files) const
    {
        writeFile(m_folder / "files", files);
        writeFile(m_folder / "folders", folders);
    }
    /// From now on the device neither gives this file away nor deletes it.
    void refuse(const std::string& path) const
    {
        writeFile(m_folder / "refused", readFile(m_folder / "refused") + "/DCIM/" + path + "\n");
    }

    void hold(const std::string& tool) const { writeFile(m_folder / (tool + ".held"), ""); }
    void letGo(const std::string& tool) const { std::filesystem::remove(m_folder / (tool + ".held")); }
    /// From now on the media tool does not go on at this command, until it is let go.
    void holdCommand(const std::string& command) const { writeFile(m_folder / "command.held", command); }
    void letCommandGo() const { std::filesystem::remove(m_folder / "command.held"); }
    /// Whether the media tool has come to that command.
    bool isAtHeldCommand() const { return std::filesystem::exists(m_folder / "command.waits"); }
    void uninstall(const std::string& tool) const { std::filesystem::remove(m_tools / tool); }
    /// The process of this tool that runs, or did last; 0 when there was none.
    int process(const std::string& tool) const
    {
        const std::string id = readFile(m_folder / (tool + ".id"));
        return id.empty() ? 0 : std::stoi(id);
    }
    /// What the media tool was asked for, a line each.
    std::string commands() const { return readFile(m_folder / "commands"); }

private:
    std::filesystem::path m_tools;
    std::filesystem::path m_folder;
};

} // namespace Korvane
