// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/Backups.h"
#include "Tests/UI/Devices/StandInDevices.h"
#include "Tests/UI/Tours/TourFixture.h"

#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// What hangs on the cable, and the backups of it.
class DeviceTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void findsADevice();
    void exportsAndDeletesMedia();
    void removesBackups();

private:
    StandInDevices tools() const { return { m_test->host.environment, *m_folder / "devices" }; }
    StandInDevices phone() const;
    /// From the button that deletes what is ticked: thinks better of it once, and then deletes.
    void deleteMedia(const StandInDevices& devices) const;
};

StandInDevices DeviceTourTest::phone() const
{
    StandInDevices devices = tools();
    devices.connect("a", "Anna's iPhone");
    for (const char* path : { "100APPLE/IMG_1.HEIC", "100APPLE/IMG_2.MOV", "101APPLE/IMG_3.JPG" })
        devices.addMedia("a", path);
    return devices;
}

void DeviceTourTest::findsADevice()
{
    const StandInDevices devices = tools();
    open("iPhone & iPad");
    arriveAt("Refresh");
    QTRY_VERIFY(shows(utf8("No device connected")));
    devices.connect("a", "Anna's iPhone");
    devices.addMedia("a", "100APPLE/IMG_1.HEIC");
    devices.hold("idevice_id");
    // The button cannot be pressed while it looks; the keyboard stays on it.
    hit(Qt::Key_Return);
    QTRY_VERIFY(!controls(window(), utf8("Refresh")).value(0)->isEnabled());
    hit(Qt::Key_Space);
    devices.letGo("idevice_id");
    QTRY_VERIFY(shows(utf8("Photos & Videos on Anna's iPhone")));
    arriveAt("Refresh");
    devices.unplugAll();
    hit(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("No device connected")));
    arriveAt("Refresh");
}

void DeviceTourTest::deleteMedia(const StandInDevices& devices) const
{
    goTo("Delete from Device", Qt::Key_Tab, 1);
    hit(Qt::Key_Space);
    beAsked("Delete Permanently", "Cancel");
    hit(Qt::Key_Escape);
    beAskedNoMore("Delete Permanently");
    arriveAt("Delete from Device");
    QVERIFY(fs::exists(devices.media("a", "100APPLE/IMG_2.MOV")));
    hit(Qt::Key_Return);
    beAsked("Delete Permanently", "Cancel");
    goTo("Delete Permanently", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
}

void DeviceTourTest::exportsAndDeletesMedia()
{
    const StandInDevices devices = phone();
    fs::create_directories(home() / "Downloads");
    open("iPhone & iPad");
    arriveAt("Refresh");
    QTRY_VERIFY(shows(utf8("101APPLE")));
    // The other button beside it reads the camera roll again.
    hit(Qt::Key_Tab);
    devices.hold("afcclient");
    hit(Qt::Key_Return);
    QTRY_VERIFY(shows(utf8("Reading camera roll…")));
    arriveAt("Refresh");
    devices.letGo("afcclient");
    QTRY_VERIFY(shows(utf8("101APPLE")));

    goTo("100APPLE", Qt::Key_Tab, 1);
    hit(Qt::Key_Right);
    goTo("IMG_2.MOV", Qt::Key_Down, 2);
    hit(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("1 files selected")));
    goTo("Export Selected to Downloads", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    QTRY_VERIFY(shows(utf8("Exported 1 files to Downloads.")));
    arriveAt("Export Selected to Downloads");
    QCOMPARE(readFile(home() / "Downloads/IMG_2.MOV"), std::string("100APPLE/IMG_2.MOV"));

    deleteMedia(devices);
    QTRY_VERIFY(shows(utf8("Deleted 1 files.")));
    // In the list as it is now, on what took the place of what has gone.
    arriveAt("101APPLE");
    QVERIFY(!fs::exists(devices.media("a", "100APPLE/IMG_2.MOV")));
    for (const char* left : { "100APPLE/IMG_1.HEIC", "101APPLE/IMG_3.JPG" })
        QVERIFY2(fs::exists(devices.media("a", left)), left);
    goTo("100APPLE", Qt::Key_Up, 2);
    hit(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("1 files selected")));
}

void DeviceTourTest::removesBackups()
{
    tools();
    addBackup(home(), "one", "Anna's iPhone", 9'000'000);
    addBackup(home(), "two", "Ben's iPad", 5'000'000);
    open("iPhone & iPad");
    arriveAt("Refresh");
    QTRY_VERIFY(shows(utf8("Ben's iPad")));
    goTo("Anna's iPhone", Qt::Key_Tab, 1);
    goTo("Ben's iPad", Qt::Key_Down, 1);
    hit(Qt::Key_Delete);
    beAsked("Move to Trash", "Cancel");
    hit(Qt::Key_Return);
    beAskedNoMore("Move to Trash");
    arriveAt("Ben's iPad");
    hit(Qt::Key_Space);
    beAsked("Move to Trash", "Cancel");
    goTo("Move to Trash", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    arriveAt("Anna's iPhone");
    QVERIFY(wasTrashed(backupsIn(home()) / "two"));
    // The last one: the keyboard goes on to what is left of the page.
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Cancel");
    goTo("Move to Trash", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    QTRY_VERIFY(shows(utf8("No backups found.")));
    arriveAt("Refresh");
    QVERIFY(wasTrashed(backupsIn(home()) / "one"));
}

QTEST_MAIN(DeviceTourTest)
#include "DeviceTourTest.moc"
