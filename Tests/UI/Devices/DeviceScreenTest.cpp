// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/AfcStandIn.h"
#include "Tests/UI/Devices/DeviceHome.h"
#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QTest>

#include <chrono>
#include <future>

using namespace Korvane;
namespace fs = std::filesystem;

/// The screen of the devices, from what is plugged in to a photo that is gone.
class DeviceScreenTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void saysThatTheToolsAreMissing();
    void saysThatNothingIsConnected();
    void showsTheDevice();
    void keepsWhatWasFoundWhileItLooksAgain();
    void leadsFromDetectionToADeletedPhoto_data();
    void leadsFromDetectionToADeletedPhoto();
    void exportsToDownloads();
    void puttingTheQuestionAwayDeletesNothing();
    void showsWhyTheCameraRollCannotBeRead();
    void showsThatTheCameraRollIsEmpty();
    void showsHowFarTheListingIsAndMayBeLeft();
    void anotherDeviceTakesTheQuestionWithIt();
    void removesABackup();
    void showsThatBackupsAreMeasured();
    void oneConfirmationIsOneDeletion();
    void theQuestionGoesWithWhatItAsksAbout();
};

void DeviceScreenTest::saysThatTheToolsAreMissing()
{
    open();
    QTRY_VERIFY(shows("Device tools not installed"));
    const QStringList hints = visibleTexts(window()).filter(QStringLiteral("Install libimobiledevice"));
    QCOMPARE(hints.size(), 1);
    QVERIFY(hints.first().startsWith(QStringLiteral("Install libimobiledevice to talk to iPhones and iPads:\n")));
    QVERIFY(shows("iPhone & iPad") && shows("Clean a connected iPhone or iPad") && shows("Connected Device"));
    QVERIFY(!shows("Files in the camera roll, via USB. Deleting here is permanent — the device has no trash."));
    QTRY_VERIFY(shows("No backups found."));
}

void DeviceScreenTest::saysThatNothingIsConnected()
{
    tools();
    open();
    QTRY_VERIFY(shows("No device connected"));
    QVERIFY(shows("Connect an iPhone or iPad with a cable and tap Trust on the device."));
    QVERIFY(visibleTexts(window()).filter(QStringLiteral("Photos & Videos on")).isEmpty());
}

void DeviceScreenTest::showsTheDevice()
{
    const StandInDevices devices = phone();
    devices.connect("b", "Ben's iPad", "0", "0");
    open();
    QTRY_VERIFY(shows("Anna's iPhone") && shows("Ben's iPad"));
    QVERIFY(shows("iOS 17.4.1"));
    QCOMPARE(visibleTexts(window()).filter(QStringLiteral(" used of ")),
        QStringList(utf8("100 GB used of 128 GB — 28 GB free")));
    QTRY_VERIFY(shows("Photos & Videos on Anna's iPhone"));
    QCOMPARE(bars(), QStringList("Used space of Anna's iPhone"));
    QVERIFY(!shows("Photos & Videos on Ben's iPad"));
    QVERIFY(shows(utf8("Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.")));
    QTRY_VERIFY(rowOf("100APPLE") && rowOf("101APPLE"));
    QVERIFY(shows("3 files") && shows("1 files") && shows("0 files selected"));
    QVERIFY(!named("Export Selected to Downloads")->isEnabled() && !named("Delete from Device")->isEnabled());
    QVERIFY(!rowOf("IMG_1.HEIC"));
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(rowOf("IMG_1.HEIC") && rowOf("IMG_2.MOV"));
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(!rowOf("IMG_1.HEIC"));
}

void DeviceScreenTest::keepsWhatWasFoundWhileItLooksAgain()
{
    const StandInDevices devices = phone();
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    QTRY_VERIFY(refreshButton("Connected Device")->isEnabled());
    devices.unplugAll();
    devices.hold("idevice_id");
    pressItem(refreshButton("Connected Device"));
    QVERIFY(!refreshButton("Connected Device")->isEnabled());
    QTest::qWait(100);
    QVERIFY(shows("Anna's iPhone") && rowOf("100APPLE"));
    devices.letGo("idevice_id");
    QTRY_VERIFY(shows("No device connected"));
    QVERIFY(!shows("Anna's iPhone") && !rowOf("100APPLE") && refreshButton("Connected Device")->isEnabled());
}

void DeviceScreenTest::leadsFromDetectionToADeletedPhoto_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("output right after the prompt") << QStringLiteral("plain");
    QTest::newRow("commands are echoed") << QStringLiteral("echo");
}

void DeviceScreenTest::leadsFromDetectionToADeletedPhoto()
{
    QFETCH(QString, style);
    phone().uninstall("afcclient");
    AfcStandIn device(m_folder->path());
    device.rules.style = style.toStdString();
    device.apply();
    for (const char* path : { "/DCIM/100APPLE/IMG_1.HEIC", "/DCIM/100APPLE/IMG_2.MOV", "/DCIM/101APPLE/IMG_3.JPG" })
        device.add(path);
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(rowOf("IMG_2.MOV"));
    pressItem(rowOf("IMG_2.MOV"));
    QTRY_VERIFY(isTicked("IMG_2.MOV") && shows("1 files selected"));
    press("Delete from Device");
    QTRY_VERIFY(shows("Delete 1 files from Anna's iPhone?"));
    QVERIFY(
        shows("This permanently deletes the files from the device. It cannot be undone. Export anything you want to "
              "keep first."));
    QVERIFY(device.has("/DCIM/100APPLE/IMG_2.MOV"));
    press("Delete Permanently");
    QTRY_VERIFY(shows("Deleted 1 files."));
    QTRY_VERIFY(rowOf("IMG_1.HEIC") && !rowOf("IMG_2.MOV"));
    QVERIFY(!device.has("/DCIM/100APPLE/IMG_2.MOV") && device.has("/DCIM/100APPLE/IMG_1.HEIC"));
    QVERIFY(device.has("/DCIM/101APPLE/IMG_3.JPG"));
    QTRY_VERIFY(shows("0 files selected"));
}

void DeviceScreenTest::exportsToDownloads()
{
    const StandInDevices devices = phone();
    devices.refuse("100APPLE/IMG_2.MOV");
    fs::create_directories(home() / "Downloads");
    open();
    QTRY_VERIFY(folderBox("100APPLE"));
    pressItem(folderBox("100APPLE"));
    QTRY_VERIFY(shows("3 files selected"));
    devices.hold("afcclient");
    press("Export Selected to Downloads");
    QTRY_VERIFY(shows(utf8("Exporting 3 files to Downloads…")));
    QVERIFY(!named("Export Selected to Downloads")->isEnabled() && !named("Delete from Device")->isEnabled());
    devices.letGo("afcclient");
    QTRY_VERIFY(shows("Exported 2 files, 1 failed."));
    QVERIFY(fs::exists(downloaded("IMG_1.HEIC")) && !fs::exists(downloaded("IMG_2.MOV")));
    pressItem(folderBox("100APPLE"));
    pressItem(folderBox("101APPLE"));
    press("Export Selected to Downloads");
    QTRY_VERIFY(shows("Exported 1 files to Downloads."));
    QCOMPARE(readFile(downloaded("IMG_4.HEIC")), std::string("101APPLE/IMG_4.HEIC"));
}

void DeviceScreenTest::puttingTheQuestionAwayDeletesNothing()
{
    const StandInDevices devices = phone();
    askForThree();
    QTRY_VERIFY(shows("Delete 3 files from Anna's iPhone?"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Delete Permanently"));
    press("Delete from Device");
    press("Cancel");
    QTRY_VERIFY(!named("Delete Permanently"));
    QVERIFY(shows("3 files selected") && fs::exists(devices.media("a", "100APPLE/IMG_1.HEIC")));
    QVERIFY(devices.commands().find("rm ") == std::string::npos);
}

void DeviceScreenTest::showsWhyTheCameraRollCannotBeRead()
{
    const StandInDevices devices = phone();
    devices.uninstall("afcclient");
    open();
    QTRY_VERIFY(shows(utf8("afcclient not found — install libimobiledevice")));
    QVERIFY(!named("Export Selected to Downloads"));
    tools();
    pressItem(refreshButton("Photos & Videos on Anna's iPhone"));
    QTRY_VERIFY(rowOf("100APPLE"));
}

void DeviceScreenTest::showsThatTheCameraRollIsEmpty()
{
    tools().connect("a", "Anna's iPhone");
    open();
    QTRY_VERIFY(shows("No media found in the camera roll."));
    QVERIFY(!named("Delete from Device"));
}

void DeviceScreenTest::showsHowFarTheListingIsAndMayBeLeft()
{
    const StandInDevices devices = phone();
    devices.hold("afcclient");
    open();
    QTRY_VERIFY(shows(utf8("Reading camera roll…")));
    QTRY_VERIFY(devices.process("afcclient") != 0);
    press("Dashboard");
    QTRY_VERIFY(hasEnded(devices.process("afcclient")));
    devices.letGo("afcclient");
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    QVERIFY(!shows(utf8("Reading camera roll…")));
}

void DeviceScreenTest::anotherDeviceTakesTheQuestionWithIt()
{
    const StandInDevices devices = phone();
    open();
    QTRY_VERIFY(folderBox("100APPLE"));
    devices.unplugAll();
    devices.connect("b", "Ben's iPad");
    devices.addMedia("b", "100APPLE/IMG_1.HEIC");
    devices.hold("idevice_id");
    pressItem(refreshButton("Connected Device"));
    pressItem(folderBox("100APPLE"));
    press("Delete from Device");
    QTRY_VERIFY(shows("Delete 3 files from Anna's iPhone?"));
    devices.letGo("idevice_id");
    QTRY_VERIFY(shows("Photos & Videos on Ben's iPad"));
    QTRY_VERIFY(!named("Delete Permanently") && shows("0 files selected"));
    QVERIFY(fs::exists(devices.media("b", "100APPLE/IMG_1.HEIC")));
    QVERIFY(devices.commands().find("rm ") == std::string::npos);
}

void DeviceScreenTest::removesABackup()
{
    addBackup(home(), "one", "Anna's iPhone", 9'000'000);
    addBackup(home(), "two", "Ben's iPad");
    open();
    QTRY_VERIFY(rowOf("Anna's iPhone") && rowOf("Ben's iPad"));
    QVERIFY(shows("iOS Backups on This Mac") && shows("Old iTunes/Finder backups can take tens of gigabytes."));
    QVERIFY(shows(utf8("iOS 17.4.1 · last backup 9 Mar 2024")));
    QTRY_VERIFY(trashButton("Anna's iPhone"));
    pressItem(trashButton("Anna's iPhone"));
    QTRY_VERIFY(shows("Delete backup of Anna's iPhone?"));
    QVERIFY(shows("You won't be able to restore this device from this backup afterwards."));
    press("Cancel");
    QTRY_VERIFY(!named("Move to Trash"));
    QVERIFY(fs::exists(backupsIn(home()) / "one"));
    pressItem(trashButton("Anna's iPhone"));
    press("Move to Trash");
    QTRY_VERIFY(rowOf("Ben's iPad") && !rowOf("Anna's iPhone"));
    QVERIFY(isInTestTrash(m_test->host.environment, "one") && fs::exists(backupsIn(home()) / "two"));
}

void DeviceScreenTest::showsThatBackupsAreMeasured()
{
    addBackup(home(), "one", "Anna's iPhone");
    std::promise<void> held;
    restartWith([root = backupsIn(home()), go = held.get_future().share()](const fs::path& folder) {
        if (folder == root)
            go.wait_for(std::chrono::minutes(1));
    });
    open();
    QTRY_VERIFY(shows(utf8("Measuring backups…")));
    QTest::qWait(100);
    QVERIFY(shows(utf8("Measuring backups…")) && !shows("No backups found.") && !rowOf("Anna's iPhone"));
    held.set_value();
    QTRY_VERIFY(!shows(utf8("Measuring backups…")) && rowOf("Anna's iPhone"));
}

void DeviceScreenTest::oneConfirmationIsOneDeletion()
{
    const StandInDevices devices = phone();
    askForThree();
    QTRY_VERIFY(named("Delete Permanently"));
    QTest::qWait(300);
    const QQuickItem* button = named("Delete Permanently");
    const QPoint place = button->mapToScene(button->boundingRect().center()).toPoint();
    for (int press = 0; press < 4; ++press) {
        QTest::mouseClick(window(), Qt::LeftButton, {}, place);
        QTest::qWait(30);
    }
    QTRY_VERIFY(shows("Deleted 3 files."));
    QTRY_VERIFY(!rowOf("100APPLE") && rowOf("101APPLE"));
    const QStringList commands = QString::fromStdString(devices.commands()).split(QLatin1Char('\n'));
    QCOMPARE(commands.filter(QStringLiteral("rm ")).size(), 3);
}

void DeviceScreenTest::theQuestionGoesWithWhatItAsksAbout()
{
    const StandInDevices devices = phone();
    askForThree();
    QTRY_VERIFY(named("Delete Permanently"));
    fs::remove(devices.media("a", "100APPLE/IMG_1.HEIC"));
    // The window is put away, and the camera roll is read again once it is back.
    window()->hide();
    window()->show();
    QTRY_VERIFY(shows("2 files selected"));
    QTRY_VERIFY(!named("Delete Permanently"));
    QVERIFY(!QString::fromStdString(devices.commands()).contains(QStringLiteral("rm ")));
}

QTEST_MAIN(DeviceScreenTest)
#include "DeviceScreenTest.moc"
