// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFolder.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Korvane {

/// The places on a device that are known: files, their folders, and what holds these.
class DevicePlaces {
public:
    explicit DevicePlaces(const std::vector<IOSMediaFolder>& listing);

    /// Those of a listing that the words of this path may name: its folders, and the files of those alone that a word
    /// leads into. For one path it answers as the whole listing does, without going through all of it.
    static DevicePlaces around(const std::string& path, const std::vector<IOSMediaFolder>& listing);

    /// Adds the file or folder at a path, and all that holds it.
    void add(std::string_view path);

    /// Whether the words that "afcclient" would make of this path name another of the places. The tool works in "/".
    bool areNamedInPlaceOf(const std::string& path) const;

private:
    std::unordered_set<std::string> m_paths;
};

/// Whether this is the path of a file that a listing would show exactly so, and that fits into a line of a script:
/// absolute, with names that a listing shows as themselves.
bool isListedDevicePath(std::string_view path);

/// The path with its last component taken away.
std::string deviceFolderOf(std::string_view path);

} // namespace Korvane
