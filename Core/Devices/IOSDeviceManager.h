// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSDevice.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// Finds the iPhones and iPads on the cable by the command-line tools of libimobiledevice. Keeps nothing between calls;
/// every member may be called from any thread but the main one, which those that run a tool would block.
class IOSDeviceManager {
public:
    IOSDeviceManager() = delete;

    /// How many bytes are kept of what a tool prints.
    static constexpr std::size_t longestOutput = std::size_t{ 16 } * 1024 * 1024;

    /// What one detection has found.
    struct DetectionResult {
        enum class Kind {
            Devices, ///< One or more devices answered.
            ToolsMissing, ///< "idevice_id" was found in none of the folders.
            NoDevice, ///< The tool listed no device, or could not be started.
        };

        Kind kind = Kind::NoDevice;
        std::vector<IOSDevice> devices; ///< In the order in which the tool printed them; empty of the other kinds.

        bool operator==(const DetectionResult&) const = default;
    };

    /// The first program of this name that may be run in Environment::deviceToolFolders; no other folder and no PATH is
    /// looked at. Any thread.
    static std::optional<std::filesystem::path> toolPath(std::string_view name, const Environment& environment);

    /// Runs a tool to its end, however long that takes, and returns its standard output; the empty text when that is
    /// not UTF-8. Its exit status and its standard error do not count.
    ///
    /// Throws FileError when it cannot be started, and, with std::errc::file_too_large, when it has printed more than
    /// `longestOutput`; CancellationError once it has been ended for being cancelled.
    static std::string run(const std::filesystem::path& tool, std::vector<std::string> arguments, const Host& host,
        const Cancellation& cancellation = {});

    /// Name, version and storage of one device, each by a run of "ideviceinfo" of its own, one after the other; what
    /// cannot be read has the value that IOSDevice names for it. Throws CancellationError alone.
    static IOSDevice info(const std::string& udid, const Host& host, const Cancellation& cancellation = {});

    /// The devices on the cable. Throws CancellationError alone.
    static DetectionResult detect(const Host& host, const Cancellation& cancellation = {});
};

} // namespace Korvane
