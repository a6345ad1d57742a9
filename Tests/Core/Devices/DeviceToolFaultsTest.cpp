// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/Devices/DeviceFixture.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

namespace Korvane {

namespace {

/// Tools that hang, print too much, or say what cannot be.
class DeviceToolFaultsTest : public DeviceFixture {
protected:
    /// Whether the process that writeHanging became is gone, five seconds at most from now on.
    bool hasEnded() const
    {
        const auto id = std::stoi(readFile(folder() / "begun"));
        for (int round = 0; round < 1000 && ::kill(id, 0) == 0; ++round)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return ::kill(id, 0) != 0 && errno == ESRCH;
    }
};

constexpr std::size_t million = 1'000'000;

} // namespace

TEST_F(DeviceToolFaultsTest, ToolThatHangsIsEndedWhenItIsCancelled)
{
    writeHanging("idevice_id");
    EXPECT_TRUE(detectionEndsWhenCancelled());
    EXPECT_TRUE(hasEnded());
}

TEST_F(DeviceToolFaultsTest, ToolThatHangsOnAFactIsEndedWhenItIsCancelled)
{
    writePrinting("idevice_id", "one\ntwo\n");
    writeHanging("ideviceinfo");
    EXPECT_TRUE(detectionEndsWhenCancelled());
    EXPECT_TRUE(hasEnded());
}

TEST_F(DeviceToolFaultsTest, CancelledDetectionStartsNothing)
{
    writeTool("idevice_id", "exit 0");
    const auto& runner = recordRuns();
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(detect(cancellation), CancellationError);
    EXPECT_THROW(IOSDeviceManager::run(tool("idevice_id"), {}, host(), cancellation), CancellationError);
    EXPECT_EQ(runner.calls(), std::vector<Call>());
}

TEST_F(DeviceToolFaultsTest, CancelledBetweenTwoFactsAsksNoMore)
{
    writeTool("idevice_id", "exit 0");
    writeTool("ideviceinfo", "exit 0");
    const Cancellation cancellation;
    int facts = 0;
    recordRuns([&](const ChildProcess& process) {
        if (process.arguments.front() == "-u" && ++facts == 2)
            cancellation.cancel();
        return "udid\n";
    });
    EXPECT_THROW(detect(cancellation), CancellationError);
    EXPECT_EQ(facts, 2);
}

TEST_F(DeviceToolFaultsTest, ToolThatWaitsForInputFindsItAtItsEnd)
{
    writeTool("idevice_id", "cat; echo udid");
    EXPECT_EQ(udids(), std::vector<std::string>{ "udid" });
}

TEST_F(DeviceToolFaultsTest, MegabytesOfComplaintsHoldNothingUp)
{
    writeTool("idevice_id", "head -c 40000000 /dev/zero >&2; echo udid");
    EXPECT_EQ(udids(), std::vector<std::string>{ "udid" });
}

TEST_F(DeviceToolFaultsTest, MegabytesOfANameAreReadWhole)
{
    const std::string name(8 * million, 'n');
    EXPECT_EQ(infoWhenPrinted(name + "\n").name, name);
}

TEST_F(DeviceToolFaultsTest, MoreThanTheLongestOutputIsAFailureAndNoShorterText)
{
    const std::string output(IOSDeviceManager::longestOutput, 'n');
    EXPECT_EQ(infoWhenPrinted(output).name, output);
    EXPECT_EQ(infoWhenPrinted(output + "n").name, "iOS Device");
    try {
        IOSDeviceManager::run(tool("ideviceinfo"), {}, host());
        ADD_FAILURE() << "too long an output was taken for a whole one";
    } catch (const FileError& error) {
        EXPECT_EQ(error.code(), std::errc::file_too_large);
    }
    writePrinting("idevice_id", "udid\n" + output);
    EXPECT_EQ(detect().kind, Kind::NoDevice);
}

TEST_F(DeviceToolFaultsTest, ToolThatNeverStopsPrintingIsEndedWhenItIsCancelled)
{
    writeTool("idevice_id", ": > '" + (folder() / "begun").native() + "'; exec yes");
    EXPECT_TRUE(detectionEndsWhenCancelled());
}

TEST_F(DeviceToolFaultsTest, IdentifierThatNoProgramCanBeGivenIsListedWithoutBeingCut)
{
    // Cut at the zero byte it would be the identifier of another device.
    writePrinting("idevice_id", std::string("one\0two\n", 8));
    writeTool("ideviceinfo", ": > '" + (folder() / "asked").native() + "'; echo other");
    EXPECT_EQ(detect().devices, (std::vector<IOSDevice>{ { std::string("one\0two", 7), "iOS Device", "?", 0, 0 } }));
    EXPECT_FALSE(std::filesystem::exists(folder() / "asked"));
}

TEST_F(DeviceToolFaultsTest, ToolThatVanishesMeanwhileLeavesTheDeviceUnknown)
{
    writeTool("ideviceinfo", "echo name; rm '" + tool("ideviceinfo").native() + "'");
    EXPECT_EQ(IOSDeviceManager::info("udid", host()), (IOSDevice{ "udid", "name", "?", 0, 0 }));
}

TEST_F(DeviceToolFaultsTest, ToolThatLeavesAProcessBehindIsNotWaitedFor)
{
    writeTool("idevice_id", "sleep 600 & echo udid");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(udids(), std::vector<std::string>{ "udid" });
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

} // namespace Korvane
