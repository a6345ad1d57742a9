// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DeviceToolsHint.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace Korvane {
namespace {

/// A system that says of itself what a test makes it say.
class DeviceToolsHintTest : public testing::Test {
protected:
    std::filesystem::path description() const { return m_folder / "os-release"; }
    std::string hintWhenDescribed(const std::string& text) const
    {
        writeFile(description(), text);
        return deviceToolsInstallation(m_environment);
    }
    Environment& environment() { return m_environment; }
    const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
    Environment m_environment = Environment::inFolder(m_folder.path());
};

constexpr const char* withApt = "sudo apt install libimobiledevice-utils";
constexpr const char* packages = "the command-line tools of libimobiledevice, and usbmuxd";

} // namespace

TEST_F(DeviceToolsHintTest, EachDistributionHasItsCommand)
{
    const std::string dnf = "sudo dnf install libimobiledevice-utils usbmuxd";
    const std::string zypper = "sudo zypper install imobiledevice-tools usbmuxd";
    const std::string pacman = "sudo pacman -S libimobiledevice usbmuxd";
    const std::array<std::pair<const char*, std::string>, 12> cases{ {
        { "PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\nVERSION_ID=\"12\"\nID=debian\n", withApt },
        { "ID=ubuntu\nID_LIKE=debian\n", withApt },
        { "ID=linuxmint\nID_LIKE=\"ubuntu debian\"\n", withApt },
        { "ID=fedora\n", dnf },
        { "ID=\"rocky\"\nID_LIKE=\"rhel centos fedora\"\n", dnf },
        { "ID=\"opensuse-tumbleweed\"\nID_LIKE=\"opensuse suse\"\n", zypper },
        { "ID=sles\nID_LIKE='suse'\n", zypper },
        { "ID=arch", pacman },
        { "ID=manjaro\nID_LIKE=arch\n", pacman },
        { "ID=alpine\n", "sudo apk add libimobiledevice-progs usbmuxd" },
        { "ID=gentoo\n", "sudo emerge app-pda/libimobiledevice app-pda/usbmuxd" },
        { "ID_LIKE=\"unknown arch\"\nID=other\n", pacman },
    } };
    for (const auto& [text, command] : cases)
        EXPECT_EQ(hintWhenDescribed(text), command) << text;
}

TEST_F(DeviceToolsHintTest, OnUnknownSystemsThePackagesAreNamed)
{
    EXPECT_EQ(deviceToolsInstallation(environment()), packages);
    for (const char* text : { "", "ID=nixos\n", "NAME=Debian\n", "# ID=debian\n", "VERSION_ID=debian\n", "ID=\"\n",
             "ID=", "ID=debian\x1b[2J" })
        EXPECT_EQ(hintWhenDescribed(text), packages) << text;
}

TEST_F(DeviceToolsHintTest, FirstDescriptionThatIsThereCounts)
{
    environment().systemReleaseFiles.push_back(folder() / "second");
    writeFile(folder() / "second", "ID=arch\n");
    EXPECT_EQ(deviceToolsInstallation(environment()), "sudo pacman -S libimobiledevice usbmuxd");
    EXPECT_EQ(hintWhenDescribed("ID=debian\n"), withApt);
    EXPECT_EQ(hintWhenDescribed("ID=nixos\n"), packages);
}

TEST_F(DeviceToolsHintTest, DescriptionThatCannotBeReadIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(description().c_str(), 0600), 0);
    EXPECT_EQ(deviceToolsInstallation(environment()), packages);
    std::filesystem::remove(description());
    EXPECT_EQ(hintWhenDescribed("ID=debian\n" + std::string(1'000'000, '\n')), packages);
}

TEST_F(DeviceToolsHintTest, ThisSystemHasAHintOfOneLine)
{
    const auto hint = deviceToolsInstallation(Environment::current());
    EXPECT_FALSE(hint.empty());
    EXPECT_EQ(hint.find('\n'), std::string::npos);
}

} // namespace Korvane
