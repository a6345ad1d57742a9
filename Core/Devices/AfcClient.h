// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/AfcAnswer.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// How many bytes are kept of what a run of "afcclient" prints: some hundred times what the largest listing has.
inline constexpr std::size_t longestAfcOutput = std::size_t{ 64 } * 1024 * 1024;

/// How long a command may be, in bytes: a build without a library for reading lines takes no more than 4095 with the
/// line feed, and the rest for another command.
inline constexpr std::size_t longestAfcCommand = 4094;

/// Where "afcclient" is, by the rule that holds for all tools for devices.
std::optional<std::filesystem::path> afcclientPath(const Environment& environment);

/// Runs the tool once, for as long as it takes, with a script of these commands and "quit", a line each. Its output is
/// read while the script is written, for it waits for the one and for the other.
///
/// Throws MediaError when the tool is missing, FileError when it cannot be started, and CancellationError once it has
/// been ended for being cancelled. Any thread but the main one.
AfcAnswer runAFC(const std::vector<std::string>& commands, const std::string& udid, const Host& host,
    const Cancellation& cancellation);

} // namespace Korvane
