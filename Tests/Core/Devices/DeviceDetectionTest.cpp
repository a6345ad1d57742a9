// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/Devices/DeviceFixture.h"
#include "Tests/Support/EnvironmentVariable.h"

#include <filesystem>

namespace Korvane {

namespace {

using DeviceDetectionTest = DeviceFixture;
using Udids = std::vector<std::string>;

const std::filesystem::perms readable{ 0644 };

} // namespace

TEST_F(DeviceDetectionTest, WithoutToolsNothingIsStarted)
{
    const auto& runner = recordRuns();
    EXPECT_EQ(detect().kind, Kind::ToolsMissing);
    EXPECT_TRUE(detect().devices.empty());
    writeTool("ideviceinfo", "exit 0");
    EXPECT_EQ(detect().kind, Kind::ToolsMissing);
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), std::nullopt);
    EXPECT_EQ(runner.calls(), std::vector<Call>());
}

TEST_F(DeviceDetectionTest, FirstFolderThatHasTheToolCounts)
{
    auto& runner = recordRuns();
    writeProgram(secondFolder() / "idevice_id", "exit 0");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), secondFolder() / "idevice_id");
    writeProgram(firstFolder() / "idevice_id", "exit 0");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), firstFolder() / "idevice_id");
    detect();
    EXPECT_EQ(runner.calls(), (std::vector<Call>{ { (firstFolder() / "idevice_id").native(), "-l" } }));
}

TEST_F(DeviceDetectionTest, WhatCannotBeRunIsNoTool)
{
    writeFile(firstFolder() / "idevice_id", "#!/bin/sh\n");
    std::filesystem::permissions(firstFolder() / "idevice_id", readable);
    writeProgram(secondFolder() / "idevice_id", "exit 0");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), secondFolder() / "idevice_id");
    std::filesystem::remove(firstFolder() / "idevice_id");
    std::filesystem::create_directory(firstFolder() / "idevice_id");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), secondFolder() / "idevice_id");
    std::filesystem::remove(firstFolder() / "idevice_id");
    std::filesystem::create_symlink("/nowhere", firstFolder() / "idevice_id");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), secondFolder() / "idevice_id");
    std::filesystem::remove(firstFolder() / "idevice_id");
    std::filesystem::create_symlink(secondFolder() / "idevice_id", firstFolder() / "idevice_id");
    EXPECT_EQ(IOSDeviceManager::toolPath("idevice_id", host().environment), firstFolder() / "idevice_id");
}

TEST_F(DeviceDetectionTest, ThePathOfTheShellIsNotSearched)
{
    writeProgram(folder() / "elsewhere/idevice_id", "exit 0");
    const EnvironmentVariable path("PATH", (folder() / "elsewhere").native() + ":/usr/bin:/bin");
    EXPECT_EQ(detect().kind, Kind::ToolsMissing);
}

TEST_F(DeviceDetectionTest, NothingOrBlankLinesMeanNoDevice)
{
    for (const char* output : { "", "\n", "\n\n\n" }) {
        writePrinting("idevice_id", output);
        EXPECT_EQ(detect().kind, Kind::NoDevice);
        EXPECT_TRUE(detect().devices.empty());
    }
}

TEST_F(DeviceDetectionTest, DevicesStandInTheOrderInWhichTheyWerePrinted)
{
    for (const char* output : { "bbb\n\naaa\n", "bbb\naaa", "\n\nbbb\n\n\naaa\n\n" }) {
        writePrinting("idevice_id", output);
        EXPECT_EQ(detect().kind, Kind::Devices);
        EXPECT_EQ(udids(), (Udids{ "bbb", "aaa" }));
    }
}

TEST_F(DeviceDetectionTest, IdentifiersAreTakenAsTheyStand)
{
    writePrinting("idevice_id", " spaced\t\r\n \n-u\nsame\nsame\n\xc3\xa9\x1b[2J\n");
    EXPECT_EQ(udids(), (Udids{ " spaced\t\r", " ", "-u", "same", "same", "\xc3\xa9\x1b[2J" }));
}

TEST_F(DeviceDetectionTest, ItCostsOneRunAndFourForEachDevice)
{
    writeTool("idevice_id", "exit 0");
    writeTool("ideviceinfo", "exit 0");
    const auto& runner
        = recordRuns([](const ChildProcess& process) { return process.arguments.size() == 1 ? "one\n two\n" : "7\n"; });
    const auto found = detect().devices;
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1], (IOSDevice{ " two", "7", "7", 7, 7 }));
    const auto id = tool("idevice_id").native(), info = tool("ideviceinfo").native();
    const std::string domain = "com.apple.disk_usage";
    std::vector<Call> expected{ { id, "-l" } };
    for (const char* udid : { "one", " two" }) {
        expected.push_back({ info, "-u", udid, "-k", "DeviceName" });
        expected.push_back({ info, "-u", udid, "-k", "ProductVersion" });
        expected.push_back({ info, "-u", udid, "-k", "TotalDiskCapacity", "-q", domain });
        expected.push_back({ info, "-u", udid, "-k", "TotalDataAvailable", "-q", domain });
    }
    EXPECT_EQ(runner.calls(), expected);
}

TEST_F(DeviceDetectionTest, ToolThatCannotBeStartedMeansNoDevice)
{
    writeTool("idevice_id", "exit 0");
    writeFile(tool("idevice_id"), "#!/nowhere/shell\n");
    EXPECT_EQ(detect().kind, Kind::NoDevice);
    EXPECT_THROW(IOSDeviceManager::run(tool("idevice_id"), { "-l" }, host()), FileError);
    EXPECT_THROW(IOSDeviceManager::run(tool("none"), {}, host()), FileError);
}

TEST_F(DeviceDetectionTest, WhatCountsIsWhatWasPrintedNotHowTheToolEnded)
{
    writeTool("idevice_id", "echo udid; echo broken >&2; exit 255");
    writeTool("ideviceinfo", "echo name; kill -9 $$");
    const auto found = detect().devices;
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().name, "name");
    writeTool("idevice_id", "echo 'ERROR: Unable to retrieve device list!' >&2; exit 255");
    EXPECT_EQ(detect().kind, Kind::NoDevice);
}

TEST_F(DeviceDetectionTest, OutputThatIsNoTextCountsAsNothing)
{
    writePrinting("idevice_id", "good\nbad\xff\n");
    EXPECT_EQ(detect().kind, Kind::NoDevice);
    EXPECT_EQ(IOSDeviceManager::run(tool("idevice_id"), { "-l" }, host()), "");
    writePrinting("idevice_id", "b\xc3\xa4r\n");
    EXPECT_EQ(IOSDeviceManager::run(tool("idevice_id"), { "-l" }, host()), "b\xc3\xa4r\n");
}

TEST_F(DeviceDetectionTest, ArgumentsReachTheToolWithoutAShellBetween)
{
    writeTool("idevice_id", "for argument; do printf '%s|' \"$argument\"; done");
    EXPECT_EQ(
        IOSDeviceManager::run(tool("idevice_id"), { "$HOME", "a b", "", "'\"\n;" }, host()), "$HOME|a b||'\"\n;|");
}

} // namespace Korvane
