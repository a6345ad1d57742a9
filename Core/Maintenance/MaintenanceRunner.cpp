// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/MaintenanceRunner.h"

#include "Platform/DisplayText.h"
#include "Platform/HostMaintenance.h"
#include "Platform/TrimmedText.h"

#include <cstdlib>

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

void runByInterpreter(MaintenanceTask task, const Host& host, const Cancellation& cancellation)
{
    ChildProcess interpreter;
    interpreter.program = host.environment.scriptInterpreter;
    interpreter.arguments
        = { "-e", "do shell script \"" + std::string(shellCommand(task)) + "\" with administrator privileges" };
    const auto result = host.processes->run(interpreter, cancellation);
    if (result.hasSucceeded())
        return;
    const auto& text = result.errorOutput.text;
    throw MaintenanceRunner::RunError(isValidUtf8(text) ? std::string(trimmedText(text)) : "Unknown error");
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
        const auto result = host.processes->run(step, cancellation);
        if (!result.hasSucceeded())
            throw RunError(hostFailure(step, result));
    }
}

std::optional<std::string> MaintenanceRunner::missingMeans(MaintenanceTask task, const Host& host)
{
    auto means = ownMeans(task, host);
    if (!means || means->missing.empty())
        return std::nullopt;
    return std::move(means->missing);
}

} // namespace Korvane
