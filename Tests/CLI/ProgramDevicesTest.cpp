// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/DateText.h"
#include "CLI/DeviceReports.h"
#include "CLI/Program.h"
#include "Core/Devices/IOSBackupScanner.h"
#include "Platform/FileError.h"
#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Support/EnvironmentVariable.h"
#include "Tests/Support/FileAppears.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/StandInProgram.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <future>
#include <limits>
#include <memory>

namespace Korvane {

namespace {

using namespace std::chrono_literals;

/// Devices and backups on a machine of the test's own, with stand-ins for the tools.
class ProgramDevicesTest : public ProgramFixture {
protected:
    ExitStatus runHere(const std::vector<std::string>& arguments, const Cancellation& cancellation = {})
    {
        Program program(m_test.host, cancellation);
        return ProgramFixture::runHere(program, arguments);
    }

    void writeTool(const std::string& name, const std::string& script) const
    {
        writeProgram(folder / "homebrew/bin" / name, script);
    }
    /// A device whose tool prints these.
    void connect(const std::string& name, const std::string& total, const std::string& free) const
    {
        writeTool("idevice_id", "echo 00008030-AB");
        writeTool("ideviceinfo",
            "case $4 in DeviceName) echo '" + name + "';; ProductVersion) echo 17.4;; TotalDiskCapacity) echo " + total
                + ";; *) echo " + free + ";; esac");
    }

    std::filesystem::path backup(const std::string& name) const
    {
        return IOSBackupScanner::backupRoot(m_test.host.environment) / name;
    }
    void makeBackup(const std::string& name, std::size_t bytes) const
    {
        writeFile(backup(name) / "data", bytes);
        writeFile(backup(name) / "Info.plist",
            "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Device Name</key><string>Ada " + name
                + "</string><key>Product Version</key><string>17.4</string><key>Last Backup Date</key>"
                  "<date>2026-11-20T12:05:09Z</date></dict></plist>");
    }

    QJsonArray array() const { return QJsonDocument::fromJson(QByteArray::fromStdString(output)).array(); }
    bool prints(const std::string& part) const { return output.find(part) != std::string::npos; }
    bool isInTrash(const std::string& name) const { return isInTestTrash(m_test.host.environment, name); }

    TestHost m_test = makeTestHost(folder);
};

constexpr std::chrono::sys_days firstOf1970{};

} // namespace

TEST_F(ProgramDevicesTest, MissingToolsAreAFailureThatSaysWhatInstallsThem)
{
    writeFile(folder / "os-release", "ID=debian\n");
    EXPECT_EQ(runHere({ "devices" }), ExitStatus::Failed);
    EXPECT_TRUE(prints("Device tools not installed. Install libimobiledevice to talk to iPhones and iPads:\n"))
        << output;
    EXPECT_TRUE(prints("install libimobiledevice")) << output;
    EXPECT_EQ(runHere({ "devices", "--json" }), ExitStatus::Failed);
    EXPECT_EQ(text(json()["result"]), "toolsMissing");
    EXPECT_NE(text(json()["installation"]).find("install libimobiledevice"), std::string::npos);
    EXPECT_TRUE(json()["devices"].toArray().isEmpty());
}

TEST_F(ProgramDevicesTest, WithoutADeviceItSaysSo)
{
    writeTool("idevice_id", "exit 0");
    EXPECT_EQ(runHere({ "devices" }), ExitStatus::Done);
    EXPECT_EQ(output, "No device connected. Connect an iPhone or iPad with a cable and tap Trust on the device.\n");
    EXPECT_EQ(runHere({ "devices", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "{\"result\":\"noDevice\",\"devices\":[],\"installation\":null}\n");
}

TEST_F(ProgramDevicesTest, DevicesAreListedWithTheirStorage)
{
    connect("Ada’s iPhone", "128000000000", "28000000000");
    EXPECT_EQ(runHere({ "devices" }), ExitStatus::Done);
    EXPECT_EQ(output, "Ada’s iPhone  iOS 17.4  100 GB used of 128 GB, 28 GB free\n  00008030-AB\n");
    EXPECT_EQ(runHere({ "devices", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output,
        "{\"result\":\"devices\",\"devices\":[{\"udid\":\"00008030-AB\",\"name\":\"Ada’s iPhone\","
        "\"productVersion\":\"17.4\",\"totalBytes\":128000000000,\"freeBytes\":28000000000}],"
        "\"installation\":null}\n");
    connect("Ada’s iPhone", "0", "28000000000");
    EXPECT_EQ(runHere({ "devices" }), ExitStatus::Done);
    EXPECT_EQ(output, "Ada’s iPhone  iOS 17.4\n  00008030-AB\n");
}

TEST_F(ProgramDevicesTest, WhatADeviceSaysIsShownOnOneLineAndCutWhenLong)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const IOSDevice hostile{ "id\n\033[2J" + std::string(100'000, 'x'), "two\nlines" + std::string(1'000'000, 'y'),
        std::string(1'000'000, 'v'), Limits::max(), Limits::min() };
    const auto report = devicesAsText({ IOSDeviceManager::DetectionResult::Kind::Devices, { hostile } }, "");
    EXPECT_LT(report.size(), 400U);
    EXPECT_EQ(report.find('\033'), std::string::npos);
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 2) << report;
}

TEST_F(ProgramDevicesTest, DetectionThatHangsIsCancelled)
{
    writeTool("idevice_id", ": > '" + (folder / "begun").native() + "'; exec sleep 600");
    const Cancellation cancellation;
    auto status = std::async(std::launch::async, [&] { return runHere({ "devices" }, cancellation); });
    EXPECT_TRUE(appears(folder / "begun"));
    cancellation.cancel();
    EXPECT_EQ(status.get(), ExitStatus::Cancelled);
    EXPECT_EQ(output + errors, "");
}

TEST_F(ProgramDevicesTest, BackupsAreListedLargestFirst)
{
    EXPECT_EQ(runHere({ "backups" }), ExitStatus::Done);
    EXPECT_EQ(output, "No backups found.\n");
    EXPECT_EQ(runHere({ "backups", "list", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "[]\n");
    makeBackup("small", 1000);
    makeBackup("large", 1'000'000);
    std::filesystem::create_directories(backup("bare"));
    const EnvironmentVariable zone("TZ", "UTC");
    ::tzset();
    EXPECT_EQ(runHere({ "backups" }), ExitStatus::Done);
    EXPECT_TRUE(prints("Ada large  iOS 17.4  last backup 2026-11-20\n")) << output;
    EXPECT_TRUE(prints("  bare\n")) << output;
    EXPECT_TRUE(prints("  " + backup("small").string() + "\n")) << output;
    EXPECT_TRUE(prints("\nTotal: 3 backups, ")) << output;
    EXPECT_LT(output.find("Ada large"), output.find("Ada small"));
    EXPECT_EQ(runHere({ "backups", "--json" }), ExitStatus::Done);
    ASSERT_EQ(array().size(), 3);
    const auto large = array()[0].toObject(), bare = array()[2].toObject();
    EXPECT_EQ(text(large["path"]), backup("large"));
    EXPECT_EQ(text(large["deviceName"]), "Ada large");
    EXPECT_EQ(text(large["productVersion"]), "17.4");
    EXPECT_EQ(text(large["lastBackupDate"]), "2026-11-20T12:05:09Z");
    EXPECT_GE(large["sizeInBytes"].toDouble(), 1'000'000);
    EXPECT_EQ(text(bare["deviceName"]), "bare");
    EXPECT_TRUE(bare["productVersion"].isNull() && bare["lastBackupDate"].isNull());
}

TEST_F(ProgramDevicesTest, WhatABackupSaysIsShownOnOneLineAndCutWhenLong)
{
    const IOSBackup hostile("/a\n\033b", "two\nlines\033[2J" + std::string(1'000'000, 'y'), std::string(100'000, 'v'),
        IOSBackup::Date::max(), 1000);
    for (const auto& report :
        { backupsAsText({ hostile }), removalPlanAsText(hostile), removalResultAsText(hostile, "message\033") }) {
        EXPECT_LT(report.size(), 500U);
        EXPECT_EQ(report.find('\033'), std::string::npos);
    }
    const auto report = backupsAsText({ hostile });
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 4) << report;
    EXPECT_EQ(report.find("last backup"), std::string::npos) << report;
}

TEST_F(ProgramDevicesTest, WhatABackupSaysIsWholeInJsonWithoutAControlCharacter)
{
    const IOSBackup hostile("/a\n\033b", "two\nlines\033[2J\xFF" + std::string(40, 'y'), std::string(30, 'v'),
        IOSBackup::Date::max(), 1000);
    EXPECT_EQ(backupsAsJson({ hostile }),
        "[{\"path\":\"/a\\u000a\\u001bb\",\"deviceName\":\"two␊lines␛[2J\uFFFD" + std::string(40, 'y')
            + "\",\"productVersion\":\"" + std::string(30, 'v')
            + "\",\"lastBackupDate\":null,\"sizeInBytes\":1000}]\n");
}

TEST_F(ProgramDevicesTest, RemoveWithoutYesOnlySaysWhatItWouldDo)
{
    makeBackup("a", 1000);
    EXPECT_EQ(runHere({ "backups", "remove", backup("a") }), ExitStatus::Done);
    EXPECT_TRUE(prints("Would be moved to the Trash:\n  " + backup("a").string() + "\n\nThe backup of Ada a, "))
        << output;
    EXPECT_TRUE(prints("--yes does it")) << output;
    EXPECT_EQ(runHere({ "backups", "remove", backup("a"), "--json" }), ExitStatus::Done);
    EXPECT_TRUE(json()["dryRun"].toBool());
    EXPECT_EQ(text(json()["deviceName"]), "Ada a");
    EXPECT_TRUE(std::filesystem::exists(backup("a/data")));
}

TEST_F(ProgramDevicesTest, RemoveTrashesTheOneThatIsNamed)
{
    makeBackup("a", 1000);
    makeBackup("b", 1000);
    const Sentinel other(backup("c/data"));
    EXPECT_EQ(runHere({ "backups", "remove", backup("a").native() + "/", "--yes" }), ExitStatus::Done);
    EXPECT_EQ(output, backup("a").string() + ": moved to the Trash\n");
    EXPECT_TRUE(isInTrash("a"));
    EXPECT_EQ(runHere({ "backups", "remove", backup("b"), "--yes", "--json" }), ExitStatus::Done);
    EXPECT_TRUE(json()["message"].isNull());
    EXPECT_EQ(text(json()["path"]), backup("b"));
    EXPECT_TRUE(isInTrash("b"));
    EXPECT_EQ(other.difference(), "");
}

TEST_F(ProgramDevicesTest, WhatIsNoBackupIsRefused)
{
    makeBackup("a", 1000);
    const Sentinel document(home() / "Documents/letter");
    for (const auto& wrong : { document.path().string(), backup("none").string(), backup("").string(),
             backup("a/data").string(), backup("../Backup/a").string(), std::string("a"), std::string("/") }) {
        EXPECT_EQ(runHere({ "backups", "remove", wrong, "--yes" }), ExitStatus::WrongUse) << wrong;
        EXPECT_NE(errors.find("'korvane-cli backups' lists them"), std::string::npos) << errors;
    }
    EXPECT_TRUE(std::filesystem::exists(backup("a/data")));
    EXPECT_EQ(document.difference(), "");
}

TEST_F(ProgramDevicesTest, BackupThatCannotBeTrashedStaysAndSaysWhy)
{
    makeBackup("a", 1000);
    const FileError error(backup("a"), std::make_error_code(std::errc::no_space_on_device));
    const auto files = std::make_shared<ForwardingFileManager>(m_test.host.files);
    files->beforeRemoving = [&](const std::filesystem::path&) { throw error; };
    m_test.host.files = files;
    EXPECT_EQ(runHere({ "backups", "remove", backup("a"), "--yes" }), ExitStatus::Failed);
    EXPECT_EQ(errors,
        "korvane-cli: " + backup("a").string() + ": not moved to the Trash: " + error.localizedDescription() + "\n");
    EXPECT_TRUE(std::filesystem::exists(backup("a/data")));
    EXPECT_EQ(runHere({ "backups", "remove", backup("a"), "--yes", "--json" }), ExitStatus::Failed);
    EXPECT_EQ(text(json()["message"]), error.localizedDescription());
}

TEST_F(ProgramDevicesTest, RealProgramAnswersInAHomeWithoutBackups)
{
    EXPECT_EQ(run({ "backups", "--json" }), 0);
    EXPECT_EQ(output, "[]\n");
    makeBackup("a", 1000);
    EXPECT_EQ(run({ "backups", "remove", backup("a") }), 0);
    EXPECT_TRUE(prints("Nothing has been changed")) << output;
}

TEST(DateTextTest, DatesAreWrittenAsIso8601WithinFourDigitsOfYears)
{
    EXPECT_EQ(universalTime(firstOf1970), "1970-01-01T00:00:00Z");
    EXPECT_EQ(universalTime(firstOf1970 - 1ms), "1969-12-31T23:59:59Z");
    EXPECT_EQ(universalTime(std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + 17h + 5min + 9s),
        "2026-11-21T17:05:09Z");
    EXPECT_EQ(universalTime(std::chrono::sys_days(std::chrono::year(1) / 1 / 1)), "0001-01-01T00:00:00Z");
    EXPECT_EQ(universalTime(std::chrono::sys_days(std::chrono::year(1) / 1 / 1) - 1ms), std::nullopt);
    EXPECT_EQ(universalTime(std::chrono::sys_days(std::chrono::year(9998) / 12 / 31) + 23h), "9998-12-31T23:00:00Z");
    for (const auto date :
        { AnyDate::max(), AnyDate::min(), AnyDate(std::chrono::sys_days(std::chrono::year(10000) / 1 / 1)) }) {
        EXPECT_EQ(universalTime(date), std::nullopt);
        EXPECT_EQ(localDay(date), std::nullopt);
    }
}

TEST(DateTextTest, DaysAreThoseOfTheUser)
{
    const auto evening = std::chrono::sys_days(std::chrono::year(2026) / 11 / 20) + 23h;
    for (const auto& [name, day] : { std::pair("UTC", "2026-11-20"), std::pair("XXX-14", "2026-11-21") }) {
        const EnvironmentVariable zone("TZ", name);
        ::tzset();
        EXPECT_EQ(localDay(evening), day) << name;
    }
    ::tzset();
}

} // namespace Korvane
