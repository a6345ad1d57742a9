// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/CLI/ProgramRun.h"

#include "Tests/Support/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {

namespace {

void redirect(int target, const std::filesystem::path& file, int flags)
{
    const int descriptor = open(file.c_str(), flags, 0600);
    if (descriptor < 0 || dup2(descriptor, target) != target)
        _exit(99);
    if (descriptor != target)
        close(descriptor);
}

std::vector<char*> pointers(std::vector<std::string>& texts)
{
    std::vector<char*> result;
    for (auto& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::string pathVariable()
{
    const char* path = std::getenv("PATH");
    return std::string("PATH=") + (path != nullptr ? path : "/usr/bin:/bin");
}

} // namespace

ProgramRun::ProgramRun(const std::filesystem::path& folder, std::vector<std::string> arguments, Output output,
    Errors errors, std::vector<std::string> variables)
    : m_outputFile(folder / "stdout")
    , m_errorFile(folder / "stderr")
{
    if (errors == Errors::Terminal) {
        m_terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (m_terminal < 0 || grantpt(m_terminal) != 0 || unlockpt(m_terminal) != 0)
            throw std::runtime_error("no terminal");
        m_terminalName = ptsname(m_terminal);
    }
    arguments.insert(arguments.begin(), "korvane-cli");
    variables.insert(variables.end(),
        { "HOME=" + (folder / "home").string(), "TMPDIR=" + (folder / "tmp").string(), "LC_ALL=C.UTF-8",
            pathVariable() });
    const auto argumentPointers = pointers(arguments);
    const auto variablePointers = pointers(variables);
    m_child = fork();
    if (m_child == 0) {
        setUpChild(output, errors);
        execve(KORVANE_CLI_PATH, argumentPointers.data(), variablePointers.data());
        _exit(98);
    }
}

ProgramRun::~ProgramRun()
{
    if (m_child > 0) {
        kill(m_child, SIGKILL);
        waitpid(m_child, nullptr, 0);
    }
    if (m_terminal >= 0)
        close(m_terminal);
}

void ProgramRun::setUpChild(Output output, Errors errors) const
{
    for (const int number : { SIGINT, SIGTERM, SIGHUP, SIGPIPE })
        std::signal(number, SIG_DFL);
    if (errors == Errors::Terminal)
        redirect(STDERR_FILENO, m_terminalName, O_WRONLY | O_NOCTTY);
    else
        redirect(STDERR_FILENO, m_errorFile, O_WRONLY | O_CREAT | O_TRUNC);
    switch (output) {
    case Output::Captured:
        redirect(STDOUT_FILENO, m_outputFile, O_WRONLY | O_CREAT | O_TRUNC);
        return;
    case Output::FullDevice:
        redirect(STDOUT_FILENO, "/dev/full", O_WRONLY);
        return;
    case Output::BrokenPipe: {
        int ends[2];
        if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) != STDOUT_FILENO)
            _exit(99);
        close(ends[0]);
        close(ends[1]);
        return;
    }
    case Output::Closed:
        close(STDOUT_FILENO);
    }
}

void ProgramRun::signal(int number) const { kill(m_child, number); }

bool ProgramRun::readTerminal()
{
    char buffer[4096];
    const auto count = read(m_terminal, buffer, sizeof buffer);
    if (count <= 0)
        return count < 0 && errno == EINTR;
    m_errors.append(buffer, static_cast<std::size_t>(count));
    return true;
}

bool ProgramRun::waitForTerminalText(const std::string& text)
{
    while (m_errors.find(text) == std::string::npos) {
        if (!readTerminal())
            return false;
    }
    return true;
}

void ProgramRun::finish()
{
    // A terminal that nobody has open any more ends with an error.
    while (m_terminal >= 0 && readTerminal()) { }
    int status = 0;
    while (waitpid(m_child, &status, 0) < 0 && errno == EINTR) { }
    m_child = -1;
    m_status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    m_output = readFile(m_outputFile);
    if (m_terminal < 0)
        m_errors = readFile(m_errorFile);
}

} // namespace Korvane
