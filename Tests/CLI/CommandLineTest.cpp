// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/CommandLine.h"

#include "CLI/UsageError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Korvane {

using Command = CommandLine::Command;
using Format = CommandLine::Format;
using Selection = CommandLine::Selection;

namespace {

CommandLine parse(const std::vector<std::string>& arguments) { return CommandLine::parse(arguments); }

/// The complaint about these arguments; empty when there is none.
std::string complaint(const std::vector<std::string>& arguments)
{
    try {
        (void)parse(arguments);
        return {};
    } catch (const UsageError& error) {
        return error.what();
    }
}

} // namespace

TEST(CommandLineTest, CommandsWithoutAModule)
{
    EXPECT_EQ(parse({ "--help" }).command, Command::Help);
    EXPECT_EQ(parse({ "-h" }).command, Command::Help);
    EXPECT_EQ(parse({ "scan", "nonsense", "--help" }).command, Command::Help);
    EXPECT_EQ(parse({ "--version" }).command, Command::Version);
    EXPECT_EQ(parse({ "modules" }).command, Command::Modules);
    EXPECT_EQ(parse({ "modules", "--json" }).format, Format::Json);
}

TEST(CommandLineTest, ScanNamesAModule)
{
    EXPECT_EQ(parse({ "scan", "systemJunk" }).module, CleanerModule::systemJunk);
    EXPECT_EQ(parse({ "scan", "largeFiles" }).module, CleanerModule::largeFiles);
    const auto line = parse({ "scan", "--json", "duplicates" });
    EXPECT_EQ(line.command, Command::Scan);
    EXPECT_EQ(line.module, CleanerModule::duplicates);
    EXPECT_EQ(line.format, Format::Json);
}

TEST(CommandLineTest, CleanTakesThePreselectedToTheTrashAndOnlySaysSoUnlessTold)
{
    const auto line = parse({ "clean", "systemJunk" });
    EXPECT_EQ(line.command, Command::Clean);
    EXPECT_EQ(line.selection, Selection::Preselected);
    EXPECT_EQ(line.removal, CommandLine::Removal::MoveToTrash);
    EXPECT_EQ(line.confirmation, CommandLine::Confirmation::Missing);
    EXPECT_EQ(line.format, Format::Text);
}

TEST(CommandLineTest, CleanTakesItsOptionsInAnyOrder)
{
    const auto line = parse({ "clean", "--yes", "--delete", "systemJunk", "--json", "--all" });
    EXPECT_EQ(line.selection, Selection::All);
    EXPECT_EQ(line.removal, CommandLine::Removal::Delete);
    EXPECT_EQ(line.confirmation, CommandLine::Confirmation::Given);
    EXPECT_EQ(line.format, Format::Json);
}

TEST(CommandLineTest, ItemsAreTakenAsBytesAsTheyAreGiven)
{
    const auto line
        = parse({ "clean", "systemJunk", "--item", "/a\xff", "--item=/b=c", "--item", "--help", "--item=" });
    EXPECT_EQ(line.command, Command::Clean);
    EXPECT_EQ(line.selection, Selection::Named);
    EXPECT_EQ(line.namedItems, (std::vector<std::filesystem::path>{ "/a\xff", "/b=c", "--help", "" }));
}

TEST(CommandLineTest, CommandHasToBeKnown)
{
    const std::string commands = "one of: modules, scan, clean, apps, uninstall, maintenance, agents, devices, "
                                 "backups, media, --help, --version";
    EXPECT_EQ(complaint({}), "a command is missing; " + commands);
    EXPECT_EQ(complaint({ "Scan" }), "unknown command 'Scan'; " + commands);
    EXPECT_EQ(complaint({ "--json" }), "unknown command '--json'; " + commands);
}

TEST(CommandLineTest, ModuleHasToBeGivenOnceAndKnown)
{
    EXPECT_EQ(complaint({ "scan" }), "a module is missing; one of: systemJunk, largeFiles, duplicates");
    EXPECT_EQ(
        complaint({ "scan", "SystemJunk" }), "unknown module 'SystemJunk'; one of: systemJunk, largeFiles, duplicates");
    EXPECT_EQ(complaint({ "scan", "maintenance" }),
        "module 'maintenance' has no scan; one of: systemJunk, largeFiles, duplicates");
    EXPECT_EQ(complaint({ "scan", "systemJunk", "duplicates" }), "unexpected argument 'duplicates'");
    EXPECT_EQ(complaint({ "modules", "systemJunk" }), "unexpected argument 'systemJunk'");
    EXPECT_EQ(complaint({ "--version", "now" }), "unexpected argument 'now'");
}

TEST(CommandLineTest, OptionsHaveToBeKnownAndInTheirPlace)
{
    EXPECT_EQ(
        complaint({ "scan", "systemJunk", "--force" }), "unknown option '--force'; --help lists the options there are");
    EXPECT_EQ(complaint({ "scan", "systemJunk", "--item=/a" }), "option '--item' belongs to the command 'clean' only");
    for (const char* option : { "--all", "--delete", "--yes", "--item" }) {
        const std::string owner = std::string(option) == "--yes"
            ? "the commands 'clean', 'uninstall', 'agents remove', 'backups remove' and 'media delete'"
            : "the command 'clean'";
        EXPECT_EQ(complaint({ "scan", "systemJunk", option }),
            std::string("option '") + option + "' belongs to " + owner + " only");
    }
    EXPECT_EQ(complaint({ "clean", "systemJunk", "--item" }), "option '--item' needs the path of one of the findings");
}

TEST(CommandLineTest, AppsTakesNothingButItsFormat)
{
    EXPECT_EQ(parse({ "apps" }).command, Command::Apps);
    EXPECT_EQ(parse({ "apps", "--json" }).format, Format::Json);
    EXPECT_EQ(complaint({ "apps", "systemJunk" }), "unexpected argument 'systemJunk'");
    EXPECT_EQ(complaint({ "apps", "--yes" }),
        "option '--yes' belongs to the commands 'clean', 'uninstall', 'agents remove', 'backups remove' and 'media "
        "delete' only");
}

TEST(CommandLineTest, UninstallTakesOneApplicationAndOnlySaysSoUnlessTold)
{
    const auto line = parse({ "uninstall", "/Applications/A\xff.app" });
    EXPECT_EQ(line.command, Command::Uninstall);
    EXPECT_EQ(line.application, "/Applications/A\xff.app");
    EXPECT_EQ(line.confirmation, CommandLine::Confirmation::Missing);
    const auto confirmed = parse({ "uninstall", "--json", "--yes", "com.example.App" });
    EXPECT_EQ(confirmed.application, "com.example.App");
    EXPECT_EQ(confirmed.confirmation, CommandLine::Confirmation::Given);
    EXPECT_EQ(confirmed.format, Format::Json);
    EXPECT_EQ(complaint({ "uninstall" }),
        "the path or the identifier of an application is missing; 'korvane-cli apps' lists them");
    EXPECT_EQ(complaint({ "uninstall", "a", "b" }), "unexpected argument 'b'");
    for (const char* option : { "--all", "--delete", "--item=/a" }) {
        EXPECT_NE(
            complaint({ "uninstall", "a", option }).find("belongs to the command 'clean' only"), std::string::npos)
            << option;
    }
}

TEST(CommandLineTest, MaintenanceListsUnlessItIsToldToRunATask)
{
    EXPECT_EQ(parse({ "maintenance" }).command, Command::Maintenance);
    EXPECT_EQ(parse({ "maintenance", "list", "--json" }).command, Command::Maintenance);
    const auto line = parse({ "maintenance", "run", "--json", "flushDNS" });
    EXPECT_EQ(line.command, Command::RunTask);
    EXPECT_EQ(line.task, MaintenanceTask::FlushDNS);
    EXPECT_EQ(line.format, Format::Json);
    const std::string tasks = "one of: freeRAM, flushDNS, reindexSpotlight";
    EXPECT_EQ(complaint({ "maintenance", "run" }), "a task is missing; " + tasks);
    EXPECT_EQ(complaint({ "maintenance", "run", "FreeRAM" }), "unknown task 'FreeRAM'; " + tasks);
    EXPECT_EQ(complaint({ "maintenance", "run", "freeRAM", "flushDNS" }), "unexpected argument 'flushDNS'");
    EXPECT_EQ(complaint({ "maintenance", "freeRAM" }), "unknown action 'freeRAM'; one of: list, run");
    EXPECT_EQ(complaint({ "maintenance", "list", "run" }), "unexpected argument 'run'");
    EXPECT_NE(complaint({ "maintenance", "run", "freeRAM", "--yes" }).find("belongs to"), std::string::npos);
}

TEST(CommandLineTest, AgentsListsUnlessItIsToldToRemoveOne)
{
    EXPECT_EQ(parse({ "agents", "--json" }).command, Command::Agents);
    EXPECT_EQ(parse({ "agents", "list" }).command, Command::Agents);
    const auto line = parse({ "agents", "remove", "/a\xff.plist" });
    EXPECT_EQ(line.command, Command::RemoveAgent);
    EXPECT_EQ(line.agent, "/a\xff.plist");
    EXPECT_EQ(line.confirmation, CommandLine::Confirmation::Missing);
    EXPECT_EQ(parse({ "agents", "remove", "/a", "--yes" }).confirmation, CommandLine::Confirmation::Given);
    EXPECT_EQ(
        complaint({ "agents", "remove" }), "the path of a background item is missing; 'korvane-cli agents' lists them");
    EXPECT_EQ(complaint({ "agents", "remove", "/a", "/b" }), "unexpected argument '/b'");
    EXPECT_EQ(complaint({ "agents", "stop" }), "unknown action 'stop'; one of: list, remove");
    EXPECT_NE(complaint({ "agents", "--yes" }).find("belongs to"), std::string::npos);
}

TEST(CommandLineTest, DevicesTakesNothingButItsFormat)
{
    EXPECT_EQ(parse({ "devices" }).command, Command::Devices);
    EXPECT_EQ(parse({ "devices", "--json" }).format, Format::Json);
    EXPECT_EQ(complaint({ "devices", "list" }), "unexpected argument 'list'");
    EXPECT_NE(complaint({ "devices", "--yes" }).find("belongs to"), std::string::npos);
}

TEST(CommandLineTest, BackupsListsUnlessItIsToldToRemoveOne)
{
    EXPECT_EQ(parse({ "backups", "--json" }).command, Command::Backups);
    EXPECT_EQ(parse({ "backups", "list" }).command, Command::Backups);
    const auto line = parse({ "backups", "--json", "remove", "/a\xff" });
    EXPECT_EQ(line.command, Command::RemoveBackup);
    EXPECT_EQ(line.backup, "/a\xff");
    EXPECT_EQ(line.format, Format::Json);
    EXPECT_EQ(line.confirmation, CommandLine::Confirmation::Missing);
    EXPECT_EQ(parse({ "backups", "remove", "/a", "--yes" }).confirmation, CommandLine::Confirmation::Given);
    EXPECT_EQ(complaint({ "backups", "remove" }), "the path of a backup is missing; 'korvane-cli backups' lists them");
    EXPECT_EQ(complaint({ "backups", "remove", "/a", "/b" }), "unexpected argument '/b'");
    EXPECT_EQ(complaint({ "backups", "delete" }), "unknown action 'delete'; one of: list, remove");
    EXPECT_NE(complaint({ "backups", "--yes" }).find("belongs to"), std::string::npos);
    EXPECT_NE(complaint({ "backups", "remove", "/a", "--delete" }).find("belongs to"), std::string::npos);
}

TEST(CommandLineTest, MediaTakesTheFirstArgumentThatIsNoOptionForItsAction)
{
    const auto list = parse({ "media", "--json", "list", "UDID" });
    EXPECT_EQ(list.command, Command::ListMedia);
    EXPECT_EQ(list.format, Format::Json);
    EXPECT_EQ(list.device, "UDID");
    const auto copy = parse({ "media", "--to", "list", "export", "UDID", "/export" });
    EXPECT_EQ(copy.command, Command::ExportMedia);
    EXPECT_EQ(copy.exportFolder, "list");
    EXPECT_EQ(copy.mediaPaths, std::vector<std::string>{ "/export" });
    const auto deletion = parse({ "media", "--yes", "delete", "delete", "/a", "--json" });
    EXPECT_EQ(deletion.command, Command::DeleteMedia);
    EXPECT_EQ(deletion.confirmation, CommandLine::Confirmation::Given);
    EXPECT_EQ(deletion.device, "delete");
    EXPECT_EQ(deletion.mediaPaths, std::vector<std::string>{ "/a" });
}

TEST(CommandLineTest, MediaTakesEachPathOnceInTheOrderOfItsFirstMention)
{
    std::vector<std::string> arguments{ "media", "delete", "UDID" }, expected;
    for (unsigned number = 0; number < 3000; ++number) {
        const auto path = "/DCIM/" + std::to_string(number * number % 1009);
        arguments.push_back(path);
        if (std::find(expected.begin(), expected.end(), path) == expected.end())
            expected.push_back(path);
    }
    EXPECT_EQ(parse(arguments).mediaPaths, expected);
}

TEST(CommandLineTest, AllAndItemExcludeEachOther)
{
    const std::string expected = "options '--all' and '--item' exclude each other";
    EXPECT_EQ(complaint({ "clean", "systemJunk", "--all", "--item", "/a" }), expected);
    EXPECT_EQ(complaint({ "clean", "systemJunk", "--item", "/a", "--all" }), expected);
}

TEST(CommandLineTest, ComplaintsShowBytesThatAreNoText)
{
    EXPECT_EQ(
        complaint({ "scan", "bad\xff" }), "unknown module 'bad\uFFFD'; one of: systemJunk, largeFiles, duplicates");
}

} // namespace Korvane
