// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"

#include <QTest>

using namespace Korvane;

/// What a screen reader and the keyboard find on the screen of the devices.
class DeviceAccessTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void withoutTheTools();
    void withoutADevice();
    void aDeviceWithItsCameraRollAndBackups();
    void aCameraRollThatIsRead();
    void aCameraRollThatCannotBeRead();
    void theQuestions();
    void whatCameOfAnExport();
};

void DeviceAccessTest::withoutTheTools()
{
    open();
    QTRY_VERIFY(shows("Device tools not installed") && shows("No backups found."));
    checkAccess(window(), "devices without the tools for them");
}

void DeviceAccessTest::withoutADevice()
{
    tools();
    open();
    QTRY_VERIFY(shows("No device connected") && shows("No backups found."));
    checkAccess(window(), "no device");
}

void DeviceAccessTest::aDeviceWithItsCameraRollAndBackups()
{
    const StandInDevices devices = phone();
    devices.connect("b", "Ben's iPad", "0", "0");
    addBackup(home(), "one", "Anna's iPhone", 9'000'000);
    addBackup(home(), "two", "Ben's iPad");
    open();
    QTRY_VERIFY(rowOf("100APPLE") && trashButton("Ben's iPad"));
    checkAccess(window(), "devices, a camera roll and backups");
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(rowOf("IMG_2.MOV"));
    pressItem(rowOf("IMG_2.MOV"));
    QTRY_VERIFY(isTicked("IMG_2.MOV"));
    const QAccessible::State box = QAccessible::queryAccessibleInterface(folderBox("100APPLE"))->state();
    QVERIFY(box.checkStateMixed && !box.checked);
    checkAccess(window(), "an open folder of which some is chosen");
}

void DeviceAccessTest::aCameraRollThatIsRead()
{
    const StandInDevices devices = phone();
    devices.hold("afcclient");
    open();
    QTRY_VERIFY(shows(utf8("Reading camera roll…")));
    checkAccess(window(), "a camera roll that is being read");
    devices.letGo("afcclient");
    QTRY_VERIFY(rowOf("100APPLE"));
}

void DeviceAccessTest::aCameraRollThatCannotBeRead()
{
    phone().uninstall("afcclient");
    open();
    QTRY_VERIFY(shows(utf8("afcclient not found — install libimobiledevice")));
    checkAccess(window(), "a camera roll that cannot be read");
}

void DeviceAccessTest::theQuestions()
{
    phone();
    addBackup(home(), "one", "Anna's iPhone");
    askForThree();
    QTRY_VERIFY(named("Delete Permanently"));
    checkAccess(window(), "the question before photos are deleted");
    press("Cancel");
    QTRY_VERIFY(!named("Delete Permanently"));
    pressItem(trashButton("Anna's iPhone"));
    QTRY_VERIFY(named("Move to Trash"));
    checkAccess(window(), "the question before a backup is removed");
}

void DeviceAccessTest::whatCameOfAnExport()
{
    const StandInDevices devices = phone();
    std::filesystem::create_directories(home() / "Downloads");
    open();
    QTRY_VERIFY(folderBox("100APPLE"));
    pressItem(folderBox("100APPLE"));
    devices.hold("afcclient");
    press("Export Selected to Downloads");
    QTRY_VERIFY(shows(utf8("Exporting 3 files to Downloads…")));
    checkAccess(window(), "an export that runs");
    devices.letGo("afcclient");
    QTRY_VERIFY(shows("Exported 3 files to Downloads."));
    checkAccess(window(), "what came of an export");
}

QTEST_MAIN(DeviceAccessTest)
#include "DeviceAccessTest.moc"
