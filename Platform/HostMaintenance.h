// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ChildProcess.h"
#include "Platform/Environment.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// What a host can do for the whole machine, or for the user's search, by programs of its own.
enum class HostTask { DropPageCache, FlushResolver, RebuildSearchIndex };

/// How this machine does a task: the programs to be run, or why it cannot be done.
struct HostMeans {
    std::vector<ChildProcess> steps; ///< Run one after the other, until one fails; empty when something is missing.
    std::string missing; ///< What is missing, in words for the user; empty when the steps can be run.
    std::vector<ChildProcess>
        favours; ///< Run once the steps have succeeded; the task is done whatever becomes of them.
};

/// The means of this machine, every program by its absolute path in one of Environment::programFolders. What needs an
/// administrator's rights is run by pkexec, which has the desktop ask for the password; the user's search index is
/// rebuilt without any. Nothing on macOS, whose interpreter of scripts is the only way. Reads a few file names: any
/// thread.
std::optional<HostMeans> hostMeans(HostTask task, const Environment& environment);

/// What to tell the user when a step has not succeeded: that the request for the password was dismissed, that nothing
/// can ask for it, that it was refused, or what the program itself said.
std::string hostFailure(const ChildProcess& step, const ChildResult& result);

} // namespace Korvane
