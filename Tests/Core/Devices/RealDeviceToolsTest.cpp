// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/DeviceFixture.h"
#include "Tests/Core/Devices/EmptyDeviceService.h"
#include "Tests/Support/EnvironmentVariable.h"

namespace Korvane {

namespace {

/// The tools of the distribution, with a service of the test's own in place of the one that knows of devices.
class RealDeviceToolsTest : public DeviceFixture {
protected:
    void SetUp() override
    {
        host().environment.deviceToolFolders = Environment::current().deviceToolFolders;
        for (const char* name : { "idevice_id", "ideviceinfo" }) {
            if (!IOSDeviceManager::toolPath(name, host().environment))
                GTEST_SKIP() << name << " is not installed (libimobiledevice-utils)";
        }
    }

    std::filesystem::path socket() const { return folder() / "usbmuxd"; }

private:
    EnvironmentVariable m_address{ "USBMUXD_SOCKET_ADDRESS", "UNIX:" + socket().native() };
};

} // namespace

TEST_F(RealDeviceToolsTest, ServiceThatKnowsNoDeviceMeansNoDevice)
{
    const EmptyDeviceService service(socket());
    EXPECT_EQ(detect().kind, Kind::NoDevice);
    EXPECT_GT(service.questions(), 0);
}

TEST_F(RealDeviceToolsTest, MissingServiceMeansNoDevice) { EXPECT_EQ(detect().kind, Kind::NoDevice); }

TEST_F(RealDeviceToolsTest, DeviceThatIsNotThereHasNoStorage)
{
    const EmptyDeviceService service(socket());
    const auto device = IOSDeviceManager::info("00008030-0123456789abcdef", host());
    EXPECT_GT(service.questions(), 0);
    EXPECT_EQ(device.udid, "00008030-0123456789abcdef");
    EXPECT_EQ(device.totalBytes, 0);
    EXPECT_EQ(device.freeBytes, 0);
    // Some builds complain on standard output, which is then all that is known of it.
    EXPECT_TRUE(device.name.empty() || device.name.find("not found") != std::string::npos) << device.name;
}

} // namespace Korvane
