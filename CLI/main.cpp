// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// korvane-cli, from the top: the command line (CommandLine) is carried out (Program) by the scanners and the cleaner
/// of Core on this machine's files, told to a terminal while it runs (TerminalProgress), and reported as text
/// (TextReports) or as JSON (JsonReports, JsonWriter). Ctrl-C becomes a cancellation (Interruption).

#include "CLI/Interruption.h"
#include "CLI/Program.h"
#include "CLI/StandardStreams.h"
#include "Platform/CloudFiles.h"

#include <clocale>
#include <exception>

namespace {

Korvane::Host hostOfThisMachine()
{
    const auto environment = Korvane::Environment::current();
    // No preferences: nothing that the command line does depends on one.
    return { environment, Korvane::makeFileManager(environment), Korvane::makeWorkspace(environment), nullptr,
        Korvane::makeApplicationCatalog(environment), Korvane::makeProcessRunner() };
}

} // namespace

int main(int argumentCount, char** arguments)
{
    Korvane::StandardStreams::secure();
    Korvane::leaveCloudFilesInTheCloud();
    std::setlocale(LC_ALL, "");
    try {
        const Korvane::Interruption interruption;
        Korvane::Program program(hostOfThisMachine(), interruption.cancellation());
        return static_cast<int>(program.run({ arguments + (argumentCount > 0 ? 1 : 0), arguments + argumentCount }));
    } catch (const std::exception& error) {
        Korvane::StandardStreams::complain(error.what());
        return static_cast<int>(Korvane::ExitStatus::Failed);
    }
}
