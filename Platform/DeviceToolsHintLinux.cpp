// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DeviceToolsHint.h"

#include "Platform/SmallFile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <sstream>
#include <string_view>
#include <vector>

namespace Korvane {

namespace {

/// Such a file holds a dozen short lines.
constexpr std::size_t largestDescription = std::size_t{ 64 } * 1024;

/// How the distributions name the tools, and the service without which these see no device; Debian's package brings it.
constexpr const char* withApt = "sudo apt install libimobiledevice-utils";
constexpr const char* withDnf = "sudo dnf install libimobiledevice-utils usbmuxd";
constexpr const char* withZypper = "sudo zypper install imobiledevice-tools usbmuxd";
constexpr const char* withPacman = "sudo pacman -S libimobiledevice usbmuxd";
constexpr const char* withApk = "sudo apk add libimobiledevice-progs usbmuxd";
constexpr const char* withEmerge = "sudo emerge app-pda/libimobiledevice app-pda/usbmuxd";
constexpr const char* packages = "the command-line tools of libimobiledevice, and usbmuxd";

/// A distribution by the name that it, or one made from it, gives itself.
struct Distribution {
    std::string_view id;
    const char* command;
};

constexpr std::array distributions{ Distribution{ "debian", withApt }, Distribution{ "ubuntu", withApt },
    Distribution{ "fedora", withDnf }, Distribution{ "rhel", withDnf }, Distribution{ "centos", withDnf },
    Distribution{ "opensuse", withZypper }, Distribution{ "suse", withZypper }, Distribution{ "arch", withPacman },
    Distribution{ "alpine", withApk }, Distribution{ "gentoo", withEmerge } };

const char* commandOf(std::string_view id)
{
    for (const auto& distribution : distributions) {
        if (distribution.id == id)
            return distribution.command;
    }
    return nullptr;
}

std::string withoutQuotes(const std::string& value)
{
    const bool isQuoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'');
    return isQuoted && value.back() == value.front() ? value.substr(1, value.size() - 2) : value;
}

/// What a variable is set to in a description of a system; empty when it is not.
std::string valueOf(std::string_view variable, const std::string& description)
{
    const auto beginning = std::string(variable) + "=";
    std::string value;
    std::istringstream lines(description);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(beginning))
            value = withoutQuotes(line.substr(beginning.size()));
    }
    return value;
}

/// Its own name, and then those of what it was made from, the closest first.
std::vector<std::string> namesOf(const std::string& description)
{
    std::vector<std::string> names{ valueOf("ID", description) };
    std::istringstream others(valueOf("ID_LIKE", description));
    for (std::string name; others >> name;)
        names.push_back(name);
    return names;
}

} // namespace

std::string deviceToolsInstallation(const Environment& environment)
{
    for (const auto& file : environment.systemReleaseFiles) {
        const auto description = contentsOfSmallFile(file, largestDescription);
        if (!description)
            continue;
        for (const auto& name : namesOf(*description)) {
            if (const char* const command = commandOf(name))
                return command;
        }
        break;
    }
    return packages;
}

} // namespace Korvane
