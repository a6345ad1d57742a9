// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceHome.h"
#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QTest>

using namespace Korvane;

/// The screen of the devices while its window is closed and the application goes on without it.
class HiddenDevicesTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void aListingEndsWithItsWindow();
    void aDeletionGoesOnAndListsNothingThatNobodySees();

private:
    static int count(const std::string& text, const std::string& part)
    {
        int found = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    }
};

void HiddenDevicesTest::aListingEndsWithItsWindow()
{
    const StandInDevices devices = phone();
    devices.hold("afcclient");
    open();
    QTRY_VERIFY(devices.process("afcclient") != 0);
    window()->hide();
    QTRY_VERIFY(hasEnded(devices.process("afcclient")));
    devices.letGo("afcclient");
    QTest::qWait(200);
    QCOMPARE(count(devices.commands(), "ls "), 0);
    window()->show();
    QTRY_VERIFY(rowOf("100APPLE") && rowOf("101APPLE"));
}

void HiddenDevicesTest::aDeletionGoesOnAndListsNothingThatNobodySees()
{
    const StandInDevices devices = phone();
    askForThree();
    QTRY_VERIFY(named("Delete Permanently"));
    devices.hold("afcclient");
    const int before = count(devices.commands(), "ls /DCIM\n");
    const int listing = devices.process("afcclient");
    press("Delete Permanently");
    QTRY_VERIFY(devices.process("afcclient") != listing);
    window()->hide();
    devices.letGo("afcclient");
    QTRY_VERIFY(devices.commands().ends_with("ls /DCIM/100APPLE\nquit\n"));
    QTRY_VERIFY(hasEnded(devices.process("afcclient")));
    QTest::qWait(300);
    QVERIFY(!std::filesystem::exists(devices.media("a", "100APPLE/IMG_1.HEIC")));
    QCOMPARE(count(devices.commands(), "ls /DCIM\n"), before);
    window()->show();
    QTRY_VERIFY(rowOf("101APPLE") && !rowOf("100APPLE"));
    QVERIFY(shows("Deleted 3 files."));
}

QTEST_MAIN(HiddenDevicesTest)
#include "HiddenDevicesTest.moc"
