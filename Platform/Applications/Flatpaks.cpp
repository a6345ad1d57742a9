// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/Flatpaks.h"

#include "Platform/FileError.h"
#include "Platform/Processes/InstalledProgram.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <system_error>

namespace Korvane {
namespace {

bool isElementCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
        || (character >= '0' && character <= '9') || character == '_' || character == '-';
}

/// Without blanks at both ends; what a tool says ends with a line end.
std::string trimmed(const std::string& text)
{
    constexpr const char* blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// What a tool that failed has to say for itself; empty when nothing.
std::string complaint(const ChildResult& result)
{
    const auto text = trimmed(result.errorOutput.text);
    return text.empty() ? trimmed(result.output.text) : text;
}

} // namespace

bool isFlatpakIdentifier(std::string_view text)
{
    constexpr std::size_t longest = 255;
    bool isElementBegun = false;
    bool hasDot = false;
    for (const char character : text) {
        if (character == '.' ? !isElementBegun : !isElementCharacter(character))
            return false;
        hasDot = hasDot || character == '.';
        isElementBegun = character != '.';
    }
    return hasDot && isElementBegun && !text.starts_with('-') && text.size() <= longest;
}

Flatpaks::Flatpaks(const Environment& environment, const std::vector<std::filesystem::path>& programFolders)
    : Flatpaks(environment, programFolders, TimeLimits())
{
}

Flatpaks::Flatpaks(
    const Environment& environment, const std::vector<std::filesystem::path>& programFolders, TimeLimits timeLimits)
    : m_tool(installedProgram(programFolders, "flatpak"))
    , m_installation(environment.dataHome() / "flatpak")
    , m_variables({ { "HOME", environment.home.native() }, { "XDG_DATA_HOME", environment.dataHome().native() },
          { "FLATPAK_USER_DIR", m_installation.native() } })
    , m_timeLimits(timeLimits)
{
}

ChildProcess Flatpaks::call(std::vector<std::string> arguments, std::chrono::milliseconds timeLimit) const
{
    ChildProcess call;
    call.program = m_tool;
    call.arguments = std::move(arguments);
    call.variables = m_variables;
    call.timeLimit = timeLimit;
    return call;
}

std::filesystem::path Flatpaks::folderOf(std::string_view identifier) const
{
    return m_installation / "app" / identifier;
}

std::vector<HostApplication> Flatpaks::installed(const Cancellation& cancellation) const
{
    // The tool would make an installation where there is none.
    std::error_code error;
    if (m_tool.empty() || !std::filesystem::is_directory(m_installation / "app", error))
        return {};
    try {
        const auto result
            = call({ "list", "--user", "--app", "--columns=application,name" }, m_timeLimits.list).run(cancellation);
        return result.hasSucceeded() ? listed(result.output.text) : std::vector<HostApplication>();
    } catch (const FileError&) {
        return {};
    }
}

std::vector<HostApplication> Flatpaks::listed(const std::string& output) const
{
    std::map<std::string, HostApplication> applications;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        const auto tab = line.find('\t');
        const auto identifier = trimmed(line.substr(0, tab));
        auto name = tab == std::string::npos ? "" : trimmed(line.substr(tab + 1));
        const auto folder = folderOf(identifier);
        std::error_code error;
        // The identifier comes first: only a checked one makes a path that stays in the installation.
        if (isFlatpakIdentifier(identifier) && std::filesystem::is_directory(symlink_status(folder, error)))
            applications.try_emplace(identifier,
                HostApplication{ HostApplication::Kind::Flatpak, identifier,
                    name.empty() ? identifier : std::move(name), folder, {}, {} });
    }
    std::vector<HostApplication> sorted;
    for (auto& [identifier, application] : applications)
        sorted.push_back(std::move(application));
    return sorted;
}

void Flatpaks::uninstall(const HostApplication& application, const Cancellation& cancellation) const
{
    const auto& identifier = application.identifier;
    if (application.kind != HostApplication::Kind::Flatpak || !isFlatpakIdentifier(identifier)
        || application.path != folderOf(identifier))
        throw FileError(application.path, std::make_error_code(std::errc::invalid_argument));
    if (m_tool.empty())
        throw FileError(application.path, std::make_error_code(std::errc::no_such_file_or_directory));
    const auto removal = call({ "uninstall", "--user", "--noninteractive", "-y", identifier }, m_timeLimits.uninstall);
    ChildResult result;
    try {
        result = removal.run(cancellation);
    } catch (const FileError& error) {
        throw FileError(application.path, error.code());
    }
    if (result.hasSucceeded())
        return;
    const auto failure = std::make_error_code(std::errc::io_error);
    const auto text = complaint(result);
    throw text.empty() ? FileError(application.path, failure) : FileError(application.path, failure, text);
}

} // namespace Korvane
