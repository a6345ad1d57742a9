// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/MaintenanceRunner.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/HostMaintenance.h"
#include "Platform/Localized.h"
#include "Platform/TrimmedText.h"

#include <cstdlib>
#include <utility>

namespace Korvane {

namespace {

HostTask hostTask(MaintenanceTask task)
{
    switch (task) {
    case MaintenanceTask::FreeRAM:
        return HostTask::DropPageCache;
    case MaintenanceTask::FlushDNS:
        return HostTask::FlushResolver;
    case MaintenanceTask::ReindexSpotlight:
        return HostTask::RebuildSearchIndex;
    }
    std::abort();
}

/// The host's own means where it has no interpreter of scripts; nothing where the interpreter is to be run.
std::optional<HostMeans> ownMeans(MaintenanceTask task, const Host& host)
{
    if (host.files->fileExists(host.environment.scriptInterpreter))
        return std::nullopt;
    return hostMeans(hostTask(task), host.environment);
}

/// Runs a program for a task; of what it says only so much is kept, cut between two characters.
ChildResult runStep(ChildProcess step, const Host& host, const Cancellation& cancellation)
{
    step.outputLimit = MaintenanceRunner::longestMessage;
    auto result = host.processes->run(step, cancellation);
    auto& text = result.errorOutput.text;
    // A character of UTF-8 has at most three bytes behind its first.
    for (int count = 0; count < 3 && result.errorOutput.isTruncated && !isValidUtf8(text); ++count)
        text.pop_back();
    return result;
}

void runByInterpreter(MaintenanceTask task, const Host& host, const Cancellation& cancellation)
{
    ChildProcess interpreter;
    interpreter.program = host.environment.scriptInterpreter;
    interpreter.arguments
        = { "-e", "do shell script \"" + std::string(shellCommand(task)) + "\" with administrator privileges" };
    const auto result = runStep(std::move(interpreter), host, cancellation);
    if (result.hasSucceeded())
        return;
    const auto& text = result.errorOutput.text;
    throw MaintenanceRunner::RunError(
        isValidUtf8(text) ? std::string(trimmedText(text)) : localized("Errors", "Unknown error"));
}

/// Runs what a task does not depend on.
void runFavour(const ChildProcess& favour, const Host& host, const Cancellation& cancellation)
{
    try {
        runStep(favour, host, cancellation);
    } catch (const FileError&) {
        // What cannot be started, or does not end, leaves the task as done as it was.
    }
}

} // namespace

MaintenanceRunner::RunError::RunError(const std::string& message)
    : std::runtime_error(message)
{
}

void MaintenanceRunner::run(MaintenanceTask task, const Host& host, const Cancellation& cancellation)
{
    const auto means = ownMeans(task, host);
    if (!means) {
        runByInterpreter(task, host, cancellation);
        return;
    }
    if (!means->missing.empty())
        throw RunError(means->missing);
    for (const auto& step : means->steps) {
        const auto result = runStep(step, host, cancellation);
        if (!result.hasSucceeded())
            throw RunError(hostFailure(step, result));
    }
    for (const auto& favour : means->favours)
        runFavour(favour, host, cancellation);
}

std::optional<std::string> MaintenanceRunner::missingMeans(MaintenanceTask task, const Host& host)
{
    auto means = ownMeans(task, host);
    if (!means || means->missing.empty())
        return std::nullopt;
    return std::move(means->missing);
}

} // namespace Korvane
