// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSDeviceManager.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Localized.h"
#include "Platform/Processes/InstalledProgram.h"
#include "Platform/TrimmedText.h"

#include <charconv>
#include <sstream>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

constexpr const char* storageDomain = "com.apple.disk_usage";

/// What the tool says to one question about a device; nothing when it is missing or could not be run.
std::optional<std::string> fact(const std::string& udid, const std::string& key,
    const std::optional<std::string>& domain, const Host& host, const Cancellation& cancellation)
{
    const auto tool = IOSDeviceManager::toolPath("ideviceinfo", host.environment);
    if (!tool)
        return std::nullopt;
    std::vector<std::string> arguments{ "-u", udid, "-k", key };
    if (domain)
        arguments.insert(arguments.end(), { "-q", *domain });
    try {
        const auto output = IOSDeviceManager::run(*tool, std::move(arguments), host, cancellation);
        return std::string(trimmedText(output));
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// The decimal number that is all of the text, with or without a sign; 0 of anything else, and when it does not fit.
std::int64_t number(const std::string& text)
{
    // The library reads "-" by itself, but no "+".
    const bool hasPlus = text.starts_with('+') && !text.starts_with("+-");
    const char* const end = text.data() + text.size();
    std::int64_t value = 0;
    const auto [rest, error] = std::from_chars(text.data() + (hasPlus ? 1 : 0), end, value);
    return error == std::errc() && rest == end ? value : 0;
}

} // namespace

std::optional<std::filesystem::path> IOSDeviceManager::toolPath(std::string_view name, const Environment& environment)
{
    auto path = installedProgram(environment.deviceToolFolders, name);
    if (path.empty())
        return std::nullopt;
    return path;
}

std::string IOSDeviceManager::run(const std::filesystem::path& tool, std::vector<std::string> arguments,
    const Host& host, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    ChildProcess process;
    process.program = tool;
    process.arguments = std::move(arguments);
    process.outputLimit = longestOutput;
    auto result = host.processes->run(process, cancellation);
    if (result.output.isTruncated)
        throw FileError(tool, std::make_error_code(std::errc::file_too_large));
    return isValidUtf8(result.output.text) ? std::move(result.output.text) : std::string();
}

IOSDevice IOSDeviceManager::info(const std::string& udid, const Host& host, const Cancellation& cancellation)
{
    const auto ask = [&](const char* key, const std::optional<std::string>& domain = std::nullopt) {
        return fact(udid, key, domain, host, cancellation);
    };
    IOSDevice device;
    device.udid = udid;
    device.name = ask("DeviceName").value_or(localized("Devices", "iOS Device"));
    device.productVersion = ask("ProductVersion").value_or("?");
    device.totalBytes = number(ask("TotalDiskCapacity", storageDomain).value_or(""));
    device.freeBytes = number(ask("TotalDataAvailable", storageDomain).value_or(""));
    return device;
}

IOSDeviceManager::DetectionResult IOSDeviceManager::detect(const Host& host, const Cancellation& cancellation)
{
    using Kind = DetectionResult::Kind;
    const auto tool = toolPath("idevice_id", host.environment);
    if (!tool)
        return { Kind::ToolsMissing, {} };
    std::string output;
    try {
        output = run(*tool, { "-l" }, host, cancellation);
    } catch (const FileError&) {
        return { Kind::NoDevice, {} };
    }
    DetectionResult result{ Kind::NoDevice, {} };
    std::istringstream lines(std::move(output));
    for (std::string udid; std::getline(lines, udid);) {
        if (!udid.empty())
            result.devices.push_back(info(udid, host, cancellation));
    }
    if (!result.devices.empty())
        result.kind = Kind::Devices;
    return result;
}

} // namespace Korvane
