// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ChildProcess.h"

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Korvane {

/// The helper program of these tests, to do what its arguments say.
ChildProcess helper(std::vector<std::string> arguments, std::string input = {});

/// Runs it to its end, which nobody cancels.
ChildResult run(const ChildProcess& process);

/// Whether the process is gone within five seconds; one that only waits to be buried counts as gone.
bool isGone(pid_t process);

/// The number that a process writes into the file with a line end, 0 when it has not within ten seconds.
pid_t numberIn(const std::filesystem::path& file);

/// Runs a sleeper on a thread of a process that then ends by `end`; whether the sleeper has gone with it.
bool isSleeperGoneAfter(const std::string& manner, void (*end)());

} // namespace Korvane
