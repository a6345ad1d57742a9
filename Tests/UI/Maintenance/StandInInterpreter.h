// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Tests/Support/StandInProgram.h"

#include <filesystem>
#include <string>
#include <utility>

namespace Korvane {

/// An interpreter of scripts that does, for each maintenance task, what a test tells it to, and waits until told.
///
/// Tasks are named by a word of their command: "purge", "dscacheutil", "mdutil".
class StandInInterpreter {
public:
    /// Puts the program where `environment` says that it is. Keeps what it is told, and tells, in `folder`.
    StandInInterpreter(const Environment& environment, std::filesystem::path folder)
        : m_folder(std::move(folder))
    {
        std::filesystem::create_directories(m_folder);
        const std::string there = "'" + m_folder.string() + "'";
        writeProgram(environment.scriptInterpreter,
            "case \"$2\" in *purge*) task=purge ;; *dscacheutil*) task=dscacheutil ;; *) task=mdutil ;; esac\n"
            "printf '%s %s\\n' \"$1\" \"$2\" >>"
                + there + "/calls\necho $$ >" + there + "/$task.id\nwhile [ ! -e " + there
                + "/$task ]; do sleep 0.02; done\n. " + there + "/$task");
    }

    /// From now on a task does this, lines for the plain shell; one that waits does it now.
    void tell(const std::string& task, const std::string& script) const
    {
        writeFile(m_folder / "told", script + "\n");
        std::filesystem::rename(m_folder / "told", m_folder / task);
    }
    /// From now on the task waits again.
    void hold(const std::string& task) const { std::filesystem::remove(m_folder / task); }

    /// Every call so far, a line each: its two arguments.
    std::string calls() const { return readFile(m_folder / "calls"); }
    /// The process that carries out the task, or did last; empty when there was none.
    std::string process(const std::string& task) const { return readFile(m_folder / (task + ".id")); }

private:
    std::filesystem::path m_folder;
};

} // namespace Korvane
