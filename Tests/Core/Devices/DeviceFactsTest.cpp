// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/Devices/DeviceFixture.h"

#include <array>
#include <limits>
#include <utility>

namespace Korvane {

namespace {

using DeviceFactsTest = DeviceFixture;
using Limits = std::numeric_limits<std::int64_t>;

} // namespace

TEST_F(DeviceFactsTest, EachQuestionHasItsAnswer)
{
    writeTool("ideviceinfo",
        "case \"$*\" in '-u my id -k DeviceName') echo ' Ada’s iPhone ';;"
        "'-u my id -k ProductVersion') echo 17.4.1;;"
        "'-u my id -k TotalDiskCapacity -q com.apple.disk_usage') echo 127989493760;;"
        "'-u my id -k TotalDataAvailable -q com.apple.disk_usage') echo 4096;;"
        "*) echo wrong;; esac");
    const auto device = IOSDeviceManager::info("my id", host());
    EXPECT_EQ(device, (IOSDevice{ "my id", "Ada’s iPhone", "17.4.1", 127989493760, 4096 }));
}

TEST_F(DeviceFactsTest, WithoutTheToolAllIsUnknown)
{
    EXPECT_EQ(IOSDeviceManager::info("udid", host()), (IOSDevice{ "udid", "iOS Device", "?", 0, 0 }));
    writePrinting("idevice_id", "udid\n");
    EXPECT_EQ(detect().devices, (std::vector<IOSDevice>{ { "udid", "iOS Device", "?", 0, 0 } }));
}

TEST_F(DeviceFactsTest, ToolThatCannotBeStartedLeavesAllUnknown)
{
    writeTool("ideviceinfo", "exit 0");
    writeFile(tool("ideviceinfo"), "#!/nowhere/shell\n");
    EXPECT_EQ(IOSDeviceManager::info("udid", host()), (IOSDevice{ "udid", "iOS Device", "?", 0, 0 }));
}

TEST_F(DeviceFactsTest, OnlyTheFactThatCannotBeReadIsUnknown)
{
    writeTool("ideviceinfo", "exit 0");
    auto& runner = recordRuns();
    const auto answerAllBut = [&](const std::string& key) {
        runner.answer = [key](const ChildProcess& process, const Cancellation&) {
            if (process.arguments[3] == key)
                throw FileError(process.program, std::make_error_code(std::errc::permission_denied));
            auto result = TestProcessRunner::exited(0);
            result.output.text = "5\n";
            return result;
        };
        return IOSDeviceManager::info("udid", host());
    };
    EXPECT_EQ(answerAllBut("DeviceName"), (IOSDevice{ "udid", "iOS Device", "5", 5, 5 }));
    EXPECT_EQ(answerAllBut("ProductVersion"), (IOSDevice{ "udid", "5", "?", 5, 5 }));
    EXPECT_EQ(answerAllBut("TotalDiskCapacity"), (IOSDevice{ "udid", "5", "5", 0, 5 }));
    EXPECT_EQ(answerAllBut("TotalDataAvailable"), (IOSDevice{ "udid", "5", "5", 5, 0 }));
}

TEST_F(DeviceFactsTest, ToolThatPrintsNothingGivesEmptyTextsNotUnknownOnes)
{
    for (const char* output : { "", "\n", " \t\r\n" })
        EXPECT_EQ(infoWhenPrinted(output), (IOSDevice{ "udid", "", "", 0, 0 }));
}

TEST_F(DeviceFactsTest, TextsLoseOnlyTheBlanksAroundThem)
{
    EXPECT_EQ(infoWhenPrinted("\n  two  words\t\r\n").name, "two  words");
    EXPECT_EQ(infoWhenPrinted("\xc2\xa0name\xe2\x80\xa9\n").name, "name");
    EXPECT_EQ(infoWhenPrinted("evil\x1b[2J\nsecond line\n").name, "evil\x1b[2J\nsecond line");
    EXPECT_EQ(infoWhenPrinted("no text \xff\n").name, "");
}

TEST_F(DeviceFactsTest, NumbersAreSignedDecimalsAndNothingElse)
{
    const std::array<std::pair<const char*, std::int64_t>, 24> cases{ { { "12345\n", 12345 }, { "+5", 5 }, { "-5", -5 },
        { "007", 7 }, { " 42 \r\n", 42 }, { "-0", 0 }, { "9223372036854775807", Limits::max() },
        { "-9223372036854775808", Limits::min() }, { "9223372036854775808", 0 }, { "-9223372036854775809", 0 },
        { "99999999999999999999999999", 0 }, { "12 345", 0 }, { "12,345", 0 }, { "12a", 0 }, { "a12", 0 }, { "1.5", 0 },
        { "0x10", 0 }, { "1e3", 0 }, { "+", 0 }, { "-", 0 }, { "+-5", 0 }, { "--5", 0 }, { "++5", 0 },
        { "\xef\xbc\x95", 0 } } };
    for (const auto& [text, number] : cases) {
        const auto device = infoWhenPrinted(text);
        EXPECT_EQ(device.totalBytes, number) << text;
        EXPECT_EQ(device.freeBytes, number) << text;
    }
}

TEST_F(DeviceFactsTest, UsedSpaceIsWhatIsNotFreeAndNeverOverflows)
{
    const auto used = [](std::int64_t total, std::int64_t free) {
        return IOSDevice{ "udid", "name", "1", total, free }.usedBytes();
    };
    EXPECT_EQ(used(100, 30), 70);
    EXPECT_EQ(used(0, 0), 0);
    EXPECT_EQ(used(10, 30), -20);
    EXPECT_EQ(used(10, -30), 40);
    EXPECT_EQ(used(Limits::max(), 1), Limits::max() - 1);
    EXPECT_EQ(used(Limits::max(), -1), Limits::max());
    EXPECT_EQ(used(0, Limits::min()), Limits::max());
    EXPECT_EQ(used(-1, Limits::min()), Limits::max());
    EXPECT_EQ(used(Limits::min(), 1), Limits::min());
    EXPECT_EQ(used(-2, Limits::max()), Limits::min());
    EXPECT_EQ(used(-1, Limits::max()), Limits::min());
}

} // namespace Korvane
