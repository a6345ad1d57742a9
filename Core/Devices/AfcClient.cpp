// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcClient.h"

#include "Core/Devices/IOSDeviceManager.h"
#include "Core/Devices/MediaError.h"

#include <utility>

namespace Korvane {

namespace {

AfcAnswer::Ending endingOf(const ChildResult& result)
{
    if (result.output.isTruncated)
        return AfcAnswer::Ending::CutOff;
    if (!result.hasSucceeded())
        return AfcAnswer::Ending::Abrupt;
    const bool isSpeechless = result.output.text.empty() && !result.errorOutput.text.empty();
    return isSpeechless ? AfcAnswer::Ending::Speechless : AfcAnswer::Ending::Calm;
}

} // namespace

std::optional<std::filesystem::path> afcclientPath(const Environment& environment)
{
    return IOSDeviceManager::toolPath("afcclient", environment);
}

AfcAnswer runAFC(const std::vector<std::string>& commands, const std::string& udid, const Host& host,
    const Cancellation& cancellation)
{
    const auto tool = afcclientPath(host.environment);
    if (!tool)
        throw MediaError::toolMissing();
    ChildProcess process;
    process.program = *tool;
    process.arguments = { "-u", udid };
    for (const auto& command : commands)
        process.input += command + "\n";
    process.input += "quit\n";
    process.outputLimit = longestAfcOutput;
    auto result = host.processes->run(process, cancellation);
    const auto ending = endingOf(result);
    return { std::move(result.output.text), ending };
}

} // namespace Korvane
