// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/InstalledApplications.h"

#include "Platform/Applications/Interpreters.h"
#include "Platform/LowerCase.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t mostEntries = 20'000;

bool isScript(const std::filesystem::path& program)
{
    std::array<char, 2> start{};
    std::ifstream file(program, std::ios::binary);
    return file.read(start.data(), start.size()) && start[0] == '#' && start[1] == '!';
}

/// Whether programs of many applications lie in a folder of this name.
bool isSharedFolderName(std::string_view name)
{
    constexpr std::array<std::string_view, 5> names{ "bin", "sbin", "games", "libexec", "lib" };
    return name.empty() || std::find(names.begin(), names.end(), name) != names.end();
}

/// The script or archive that an interpreter is told to run: the first argument that is a path.
std::filesystem::path scriptAmong(const std::vector<std::string>& arguments)
{
    const auto found = std::find_if(
        arguments.begin() + 1, arguments.end(), [](const auto& argument) { return argument.starts_with('/'); });
    return found == arguments.end() ? std::filesystem::path() : std::filesystem::path(*found);
}

} // namespace

InstalledApplications::InstalledApplications(
    const std::vector<std::filesystem::path>& dataFolders, const std::vector<std::filesystem::path>& searchPath)
    : m_searchPath(searchPath)
{
    for (const auto& folder : dataFolders)
        readFolder(folder / "applications");
}

void InstalledApplications::readFolder(const std::filesystem::path& folder)
{
    visitDesktopEntries(folder, [this](const std::string& id, const std::filesystem::path& file) {
        if (m_seenIds.size() >= mostEntries || !m_seenIds.insert(id).second)
            return;
        if (const auto entry = readDesktopEntry(file); entry && !entry->isHidden)
            add(id, *entry);
    });
}

void InstalledApplications::add(const std::string& id, const DesktopEntry& entry)
{
    const auto command = entry.command();
    if (command.empty())
        return;
    const auto executable = resolved(command.front());
    if (executable.empty())
        return;
    const auto programName = std::filesystem::path(command.front()).filename().native();
    const auto index = m_applications.size();
    m_applications.push_back({ id, entry.startupWmClass, programName });
    if (isInterpreter(programName) || isInterpreter(executable.filename().native())) {
        std::error_code error;
        const auto script = std::filesystem::canonical(scriptAmong(command), error);
        if (!error)
            m_byScript.emplace(script.native(), index);
    } else if (isScript(executable)) {
        addScript(executable, index);
    } else {
        m_byExecutable.emplace(executable.native(), index);
    }
}

/// A start script runs under an interpreter, or hands over to the program proper, which has a path of its own.
void InstalledApplications::addScript(const std::filesystem::path& script, std::size_t application)
{
    m_byScript.emplace(script.native(), application);
    const auto folder = script.parent_path();
    if (!isSharedFolderName(folder.filename().native()))
        m_byScriptFolder.emplace(folder.native(), application);
    const auto& [id, windowClass, programName] = m_applications[application];
    std::unordered_set<std::string> names{ lowercased(programName), lowercased(windowClass), lowercased(id) };
    if (const auto dot = id.rfind('.'); dot != std::string::npos)
        names.insert(lowercased(id.substr(dot + 1)));
    for (const auto& name : names)
        if (!name.empty())
            m_byScriptName.emplace(name, application);
}

std::filesystem::path InstalledApplications::resolved(const std::string& program) const
{
    const auto canonicalProgram = [](const std::filesystem::path& path) {
        std::error_code error;
        auto real = std::filesystem::canonical(path, error);
        const bool isProgram
            = !error && std::filesystem::is_regular_file(real, error) && ::access(real.c_str(), X_OK) == 0;
        return isProgram ? real : std::filesystem::path();
    };
    if (program.starts_with('/'))
        return canonicalProgram(program);
    if (program.find('/') != std::string::npos)
        return {};
    for (const auto& folder : m_searchPath)
        if (auto real = canonicalProgram(folder / program); !real.empty())
            return real;
    return {};
}

std::unordered_set<std::string> InstalledApplications::identifiersOf(const ProgramInvocation& program) const
{
    std::unordered_set<std::string> identifiers;
    const auto name = program.executable.filename().native();
    if (!isInterpreter(name)) {
        insert(m_byExecutable, program.executable.native(), identifiers);
        insert(m_byScriptFolder, program.executable.parent_path().native(), identifiers);
        insert(m_byScriptName, lowercased(name), identifiers);
        return identifiers;
    }
    for (std::size_t index = 1; index < program.arguments.size(); ++index) {
        if (!program.arguments[index].starts_with('/'))
            continue;
        std::error_code error;
        const auto script = std::filesystem::canonical(program.arguments[index], error);
        if (!error)
            insert(m_byScript, script.native(), identifiers);
    }
    return identifiers;
}

void InstalledApplications::insert(
    const Index& index, const std::string& key, std::unordered_set<std::string>& identifiers) const
{
    const auto [first, last] = index.equal_range(key);
    for (auto entry = first; entry != last; ++entry)
        insertIdentifiers(entry->second, identifiers);
}

void InstalledApplications::insertIdentifiers(
    std::size_t application, std::unordered_set<std::string>& identifiers) const
{
    const auto& [id, windowClass, programName] = m_applications[application];
    for (const auto& identifier : { id, windowClass })
        if (!identifier.empty() && !isInterpreter(lowercased(identifier)))
            identifiers.insert(identifier);
}

} // namespace Korvane
