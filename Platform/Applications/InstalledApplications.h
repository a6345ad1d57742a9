// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Applications/DesktopEntry.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Korvane {

/// A process as its executable and its arguments show it.
struct ProgramInvocation {
    std::filesystem::path executable; ///< Free of links.
    std::vector<std::string> arguments; ///< The first is the name it was called by.
};

/// The desktop entries that are installed, to be asked which of them a process belongs to.
class InstalledApplications {
public:
    /// Reads "applications" in each data folder, the more important first; programs are found by `searchPath`.
    ///
    /// An entry hides those of the same id in less important folders. What cannot be read or understood is left out.
    InstalledApplications(
        const std::vector<std::filesystem::path>& dataFolders, const std::vector<std::filesystem::path>& searchPath);

    /// The ids, and the window classes beside them, of every entry that starts this program.
    ///
    /// An interpreter starts an entry only when its arguments also name the entry's script.
    std::unordered_set<std::string> identifiersOf(const ProgramInvocation& program) const;

private:
    struct Application {
        std::string id;
        std::string windowClass;
        std::string programName; ///< The last component of what Exec names.
    };
    using Index = std::unordered_multimap<std::string, std::size_t>;

    void readFolder(const std::filesystem::path& folder);
    void add(const std::string& id, const DesktopEntry& entry);
    std::filesystem::path resolved(const std::string& program) const;
    void addScript(const std::filesystem::path& script, std::size_t application);
    void insert(const Index& index, const std::string& key, std::unordered_set<std::string>& identifiers) const;
    void insertIdentifiers(std::size_t application, std::unordered_set<std::string>& identifiers) const;

    std::vector<std::filesystem::path> m_searchPath;
    std::unordered_set<std::string> m_seenIds;
    std::vector<Application> m_applications;
    Index m_byExecutable;
    Index m_byScript; ///< Scripts that an interpreter runs, by path free of links.
    Index m_byScriptFolder; ///< Folders of their own in which a start script lies beside the program proper.
    Index m_byScriptName; ///< Names under which the program proper of a start script may run.
};

} // namespace Korvane
