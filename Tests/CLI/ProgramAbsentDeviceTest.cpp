// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/CLI/ProgramMediaFixture.h"
#include "Tests/Support/StandInProgram.h"

namespace Korvane {

namespace {

/// A device, or a tool, that cannot be asked.
class ProgramAbsentDeviceTest : public ProgramMediaFixture {
protected:
    /// All that can be asked of a device, with and without JSON.
    std::vector<std::vector<std::string>> commandsOnTheDevice() const
    {
        return { { "media", "list", "UDID" }, { "media", "list", "UDID", "--json" },
            { "media", "export", "UDID", first }, { "media", "export", "UDID", first, "--json" },
            { "media", "delete", "UDID", first, "--json" }, { "media", "delete", "UDID", first, "--yes" } };
    }
};

} // namespace

TEST_F(ProgramAbsentDeviceTest, DeviceThatIsNotThereIsNoEmptyCameraRoll)
{
    std::filesystem::remove_all(tool.rules.device / "DCIM");
    writeProgram(folder / "local/bin/idevice_id", "echo OTHER");
    writeProgram(folder / "local/bin/ideviceinfo", "echo x");
    for (const auto& arguments : commandsOnTheDevice()) {
        EXPECT_EQ(runHere(arguments), ExitStatus::Failed);
        EXPECT_EQ(
            errors, "korvane-cli: the device 'UDID' is not connected; 'korvane-cli devices' shows those that are\n");
        EXPECT_EQ(output, "");
    }
    writeProgram(folder / "local/bin/idevice_id", "exit 0");
    EXPECT_EQ(runHere({ "media", "list", "UDID" }), ExitStatus::Failed);
    EXPECT_EQ(output, "");
}

TEST_F(ProgramAbsentDeviceTest, DeviceThatDoesNotTrustThisComputerIsNoEmptyCameraRoll)
{
    tool.rules.complains = "start";
    tool.apply();
    writeProgram(folder / "local/bin/idevice_id", "echo UDID");
    writeProgram(folder / "local/bin/ideviceinfo", "echo 'ERROR: Could not connect to lockdownd' >&2; exit 255");
    for (const auto& arguments : commandsOnTheDevice()) {
        EXPECT_EQ(runHere(arguments), ExitStatus::Failed);
        EXPECT_EQ(errors, "korvane-cli: the device 'UDID' cannot be read; unlock it and tap Trust on it\n");
        EXPECT_EQ(output, "");
    }
}

TEST_F(ProgramAbsentDeviceTest, EmptyCameraRollOfADeviceThatAnswersIsListed)
{
    std::filesystem::remove_all(tool.rules.device / "DCIM");
    writeProgram(folder / "local/bin/idevice_id", "echo OTHER; echo UDID");
    writeProgram(folder / "local/bin/ideviceinfo", "echo x");
    EXPECT_EQ(runHere({ "media", "list", "UDID" }), ExitStatus::Done);
    EXPECT_EQ(output, "No media found in the camera roll.\n");
    EXPECT_EQ(runHere({ "media", "list", "UDID", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "[]\n");
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first, "--yes" }), ExitStatus::WrongUse);
}

TEST_F(ProgramAbsentDeviceTest, ToolThatCannotBeStartedIsNamed)
{
    const auto broken = folder / "local/bin/afcclient";
    std::filesystem::remove(broken);
    writeFile(broken, "no program");
    std::filesystem::permissions(broken, std::filesystem::perms(0755));
    for (const auto& arguments : commandsOnTheDevice()) {
        EXPECT_EQ(runHere(arguments), ExitStatus::Failed);
        EXPECT_TRUE(errors.starts_with("korvane-cli: " + broken.string() + ": ")) << errors;
        EXPECT_GT(errors.size(), broken.string().size() + 18) << errors;
        EXPECT_EQ(output, "");
    }
}

} // namespace Korvane
