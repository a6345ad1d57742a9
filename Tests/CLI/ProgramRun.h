// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Korvane {

/// One run of the real korvane-cli as a child process, in a home of the test's own.
class ProgramRun {
public:
    /// Where the child's standard output goes.
    enum class Output { Captured, FullDevice, BrokenPipe, Closed };
    /// What the child's standard error is.
    enum class Errors { Captured, Terminal };

    /// Starts the program: HOME is "home" and TMPDIR "tmp" in `folder`, and nothing else of this process's
    /// environment but PATH is handed on. `variables` ("NAME=value") come on top.
    ProgramRun(const std::filesystem::path& folder, std::vector<std::string> arguments,
        Output output = Output::Captured, Errors errors = Errors::Captured, std::vector<std::string> variables = {});
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    void signal(int number) const;
    /// Reads what a terminal shows until `text` comes, or the program ends; whether it came.
    bool waitForTerminalText(const std::string& text);
    /// Waits for the end, and reads what is left.
    void finish();

    /// The exit status; the negative signal number when a signal ended the program.
    int status() const { return m_status; }
    const std::string& output() const { return m_output; }
    const std::string& errors() const { return m_errors; }

private:
    void setUpChild(Output output, Errors errors) const;
    bool readTerminal();

    std::filesystem::path m_outputFile;
    std::filesystem::path m_errorFile;
    std::string m_terminalName;
    int m_terminal = -1;
    pid_t m_child = -1;
    int m_status = -1;
    std::string m_output;
    std::string m_errors;
};

} // namespace Korvane
