// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A program in the place of "afcclient", for a device that is a folder: reads commands line by line, prompts and
// answers as the builds in use do, and misbehaves as "afcclient.conf" beside it says. It is put in place by AfcStandIn.

#include "Tests/Support/AfcStandInRules.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Korvane::AfcStandInRules;
namespace fs = std::filesystem;

constexpr const char* prompt = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/\x1b[m";

class Tool {
public:
    explicit Tool(AfcStandInRules rules)
        : m_rules(std::move(rules))
    {
    }

    void run(const std::string& arguments)
    {
        std::ofstream(m_rules.log, std::ios::app) << arguments << "\n";
        misbehave("start");
        std::string line;
        for (printPrompt(); std::getline(std::cin, line); printPrompt()) {
            std::ofstream(m_rules.log, std::ios::app | std::ios::binary) << line << "\n";
            if (m_rules.style.starts_with("echo"))
                std::cout << line << "\n";
            if (line == "quit") {
                std::cout.flush();
                return;
            }
            obey(line);
        }
        hang();
    }

private:
    void printPrompt() const
    {
        if (m_rules.style != "bare")
            std::cout << prompt << (m_rules.style.ends_with("spaced") ? " > " : "> ");
    }

    void fail(const std::string& message) const { std::cout << "Error: " << message << "\n"; }

    [[noreturn]] void hang() const
    {
        std::cout.flush();
        std::ofstream(m_rules.begun).put('x');
        while (true)
            ::pause();
    }

    /// Does at a command what the rules say; true when it is not to be obeyed any more.
    bool misbehave(const std::string& command) const
    {
        if (m_rules.flood > 0 && command != "start")
            flood();
        if (m_rules.complains == command) {
            std::cerr << "ERROR: Could not connect to the device\n";
            std::_Exit(0);
        }
        if (m_rules.hangs == command && hasBeenGiven(m_rules.hangsBehind))
            hang();
        if (m_rules.dies == command && command != "get") {
            std::cout << "IMG_00" << std::flush;
            ::raise(SIGKILL);
        }
        if (m_rules.leaves == command && command != "get") {
            std::cout << "IMG_00" << std::flush;
            std::_Exit(0);
        }
        if (m_rules.breaks == command && command != "get") {
            fail(m_rules.breakage);
            return true;
        }
        return m_rules.ignores == command;
    }

    /// Whether this run or one before it has read the command; any has read none.
    bool hasBeenGiven(const std::string& command) const
    {
        std::ifstream log(m_rules.log, std::ios::binary);
        bool isGiven = command.empty();
        for (std::string line; !isGiven && std::getline(log, line);)
            isGiven = line.starts_with(command + " ");
        return isGiven;
    }

    /// Lines that are no names.
    void flood() const
    {
        const std::string line = "warning: " + std::string(1014, 'x') + "\n";
        for (std::size_t count = 0; count < m_rules.flood * 1024; ++count)
            std::cout << line;
    }

    void obey(const std::string& line)
    {
        const auto command = line.substr(0, line.find(' '));
        const auto words = m_rules.words(line.size() > command.size() ? line.substr(command.size() + 1) : "");
        if (command == "ls" && !misbehave(command))
            list(words);
        else if (command == "rm" && !misbehave(command))
            remove(words);
        else if (command == "get")
            get(words);
        else if (command != "ls" && command != "rm" && command != "get")
            fail("Unknown command '" + line + "'. Type 'help' to get a list of available commands.");
    }

    fs::path onDevice(const std::string& word) const { return m_rules.device / fs::path("/" + word).relative_path(); }

    void list(const std::vector<std::string>& words) const
    {
        std::error_code error;
        const auto path = words.empty() ? "/" : words.front();
        if (path == m_rules.denies) {
            std::cout << (m_rules.deniesByPath ? path : fs::path(path).filename().native()) << "\n";
            return;
        }
        fs::directory_iterator entries(onDevice(path), error);
        if (error) {
            fail("Failed to list '" + path + "': Object not found (8)");
            return;
        }
        std::set<std::string> names;
        for (const auto& entry : entries)
            names.insert(entry.path().filename().native() + (entry.is_directory() ? "/" : ""));
        std::cout << ".\n..\n";
        for (const auto& name : names)
            std::cout << name << "\n";
    }

    void remove(const std::vector<std::string>& words) const
    {
        for (const auto& word : words) {
            std::error_code error;
            if (word.find(m_rules.keeps) == std::string::npos || m_rules.keeps.empty())
                fs::remove(onDevice(word), error);
            if (error || fs::exists(onDevice(word)))
                fail("Failed to remove '" + word + "': Operation not permitted (10)");
            if (m_rules.sweeps)
                fs::remove(onDevice(word).parent_path(), error);
        }
    }

    void get(const std::vector<std::string>& words) const
    {
        const auto path = words.empty() ? "" : words.front();
        fs::path destination = words.size() > 1 ? fs::path(words[1]) : fs::path(path).filename();
        if (fs::is_directory(destination))
            destination /= fs::path(path).filename();
        if (!m_rules.rival.empty())
            std::ofstream(destination, std::ios::binary) << m_rules.rival;
        if (misbehave("get"))
            return;
        std::ifstream source(onDevice(path), std::ios::binary);
        if (!source || fs::is_directory(onDevice(path))) {
            fail("Failed to read from file '" + path + "': Object not found (8)");
            return;
        }
        if (!m_rules.overwrites && fs::exists(destination)) {
            fail(m_rules.refusal + destination.native());
            return;
        }
        std::ofstream copy(destination, std::ios::binary);
        if (!copy) {
            fail("Failed to open local file '" + destination.native() + "': No such file or directory");
            return;
        }
        const std::string bytes((std::istreambuf_iterator<char>(source)), {});
        write(copy, m_rules.empties ? "" : bytes);
    }

    void write(std::ofstream& copy, const std::string& bytes) const
    {
        const bool breaks
            = m_rules.breaks == "get" || m_rules.dies == "get" || m_rules.leaves == "get" || m_rules.hangs == "copy";
        constexpr std::size_t steps = 9;
        for (std::size_t step = 0; step < (breaks ? steps / 2 : steps); ++step) {
            const auto begin = bytes.size() * step / steps, end = bytes.size() * (step + 1) / steps;
            copy << bytes.substr(begin, end - begin) << std::flush;
            std::cout << "\r" << (step + 1) * 100 / steps << "% (427.5 MB/s)   ";
        }
        std::cout << std::flush;
        if (m_rules.hangs == "copy")
            hang();
        if (m_rules.dies == "get")
            ::raise(SIGKILL);
        if (m_rules.leaves == "get")
            std::_Exit(0);
        if (m_rules.breaks == "get")
            fail("Failed to read from the device: I/O error (14)");
        else
            std::cout << "\n";
    }

    AfcStandInRules m_rules;
};

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    std::string arguments = "run";
    for (int index = 1; index < argc; ++index)
        arguments += std::string(" ") + argv[index];
    Tool(AfcStandInRules::read(fs::path(argv[0]).parent_path() / "afcclient.conf")).run(arguments);
    return 0;
}
