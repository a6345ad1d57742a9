// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/LinuxApplications.h"

#include "Platform/Applications/ApplicationUnit.h"
#include "Platform/Applications/BundleAround.h"
#include "Platform/Applications/InstalledApplications.h"
#include "Platform/Applications/Interpreters.h"
#include "Platform/Bundle.h"
#include "Platform/LowerCase.h"
#include "Platform/SmallFile.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t largestProcessFile = 1 << 20;

std::vector<std::filesystem::path> absoluteFolders(const char* variable, const char* whenAbsent)
{
    const char* value = std::getenv(variable);
    std::istringstream list(value != nullptr && value[0] != '\0' ? value : whenAbsent);
    std::vector<std::filesystem::path> folders;
    for (std::string folder; std::getline(list, folder, ':');)
        if (folder.starts_with('/'))
            folders.emplace_back(folder);
    return folders;
}

bool isProcessId(std::string_view name)
{
    return !name.empty() && name.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Whether the process runs for the user, by the real user id in its "status" file, which anybody may read.
bool belongsTo(std::uint32_t user, const std::filesystem::path& process)
{
    const auto status = contentsOfSmallFile(process / "status", largestProcessFile);
    constexpr std::string_view key = "\nUid:";
    const auto at = status ? status->find(key) : std::string::npos;
    if (at == std::string::npos)
        return false;
    std::istringstream numbers(status->substr(at + key.size()));
    std::uint64_t realUser = 0;
    return numbers >> realUser && realUser == user;
}

std::optional<std::string> flatpakIdentifier(const std::filesystem::path& process)
{
    // Only a process with a root folder of its own can be in a sandbox.
    std::error_code error, ownError;
    const auto space = std::filesystem::read_symlink(process / "ns/mnt", error);
    const auto ownSpace = std::filesystem::read_symlink(process.parent_path() / "self/ns/mnt", ownError);
    if (!error && !ownError && space == ownSpace)
        return std::nullopt;
    const auto info = contentsOfSmallFile(process / "root/.flatpak-info", largestProcessFile);
    std::istringstream lines(info.value_or(""));
    constexpr std::string_view key = "name=";
    bool isInGroup = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('['))
            isInGroup = line == "[Application]" || line == "[Runtime]";
        else if (isInGroup && line.starts_with(key))
            return line.substr(key.size());
    }
    return std::nullopt;
}

std::optional<ProgramInvocation> invocationOf(const std::filesystem::path& process)
{
    std::error_code error;
    std::string executable = std::filesystem::read_symlink(process / "exe", error).native();
    if (error)
        return std::nullopt;
    // A program that was updated while it runs.
    constexpr std::string_view deleted = " (deleted)";
    if (executable.ends_with(deleted))
        executable.resize(executable.size() - deleted.size());
    ProgramInvocation program{ executable, {} };
    std::istringstream arguments(contentsOfSmallFile(process / "cmdline", largestProcessFile).value_or(""));
    for (std::string argument; std::getline(arguments, argument, '\0');)
        program.arguments.push_back(argument);
    return program;
}

/// The identifier of the bundle in which a program lies, or the script that an interpreter runs.
std::optional<std::string> bundleIdentifier(const ProgramInvocation& program)
{
    auto file = program.executable;
    if (isInterpreter(file.filename().native())) {
        const auto script = std::find_if(program.arguments.begin(), program.arguments.end(),
            [](const auto& argument) { return !bundleAround(argument).empty(); });
        if (script == program.arguments.end())
            return std::nullopt;
        file = *script;
    }
    const auto folder = bundleAround(file);
    const auto bundle = folder.is_absolute() ? Bundle::open(folder) : std::nullopt;
    return bundle ? bundle->bundleIdentifier() : std::nullopt;
}

} // namespace

LinuxApplications LinuxApplications::ofThisProcess(const std::filesystem::path& dataHome)
{
    LinuxApplications applications;
    applications.processTable = "/proc";
    applications.dataFolders = absoluteFolders("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    applications.dataFolders.insert(applications.dataFolders.begin(), dataHome);
    applications.searchPath = absoluteFolders("PATH", "/usr/local/bin:/usr/bin:/bin");
    applications.user = ::getuid();
    return applications;
}

std::vector<std::string> LinuxApplications::runningIdentifiers() const
{
    const InstalledApplications installed(dataFolders, searchPath);
    std::set<std::string> identifiers;
    const auto insert = [&](const std::optional<std::string>& identifier) {
        if (identifier && !identifier->empty() && !isInterpreter(lowercased(*identifier)))
            identifiers.insert(*identifier);
    };
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(processTable, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const auto& process = entry->path();
        if (!isProcessId(process.filename().native()) || !belongsTo(user, process))
            continue;
        if (const auto groups = contentsOfSmallFile(process / "cgroup", largestProcessFile))
            insert(applicationOfControlGroups(*groups));
        insert(flatpakIdentifier(process));
        if (const auto program = invocationOf(process)) {
            insert(bundleIdentifier(*program));
            for (const auto& identifier : installed.identifiersOf(*program))
                insert(identifier);
        }
    }
    return { identifiers.begin(), identifiers.end() };
}

} // namespace Korvane
