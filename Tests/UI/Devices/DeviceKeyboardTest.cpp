// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// What the keyboard does on the screen of the devices.
class DeviceKeyboardTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void goesOnFromTheCardThatOpensTheScreen();
    void browsesTheCameraRoll();
    void deletesFromTheKeyboard();
    void goesOnFromAButtonThatIsDisabled();
    void keepsTheKeyboardWhileTheCameraRollIsReadAgain();
    void goesOnOnceTheDeviceIsAnother();
    void goesOnOnceTheQuestionHasGoneWithItsDevice();
    void removesABackupFromTheKeyboard();
    void scrollsToWhatTheKeyboardReaches();

private:
    void openByKeyboard() const
    {
        tabTo("iPhone & iPad");
        key(Qt::Key_Return);
    }
    static bool isOnPage(const QQuickItem* item)
    {
        while (item != nullptr && !item->inherits("QQuickFlickable"))
            item = item->parentItem();
        return item != nullptr && accessibleName(item->parentItem()) == utf8("iPhone & iPad");
    }
};

void DeviceKeyboardTest::goesOnFromTheCardThatOpensTheScreen()
{
    phone();
    tabTo("Smart Scan");
    tabTo("iPhone & iPad");
    key(Qt::Key_Return);
    QTRY_VERIFY(rowOf("101APPLE"));
    QTRY_VERIFY(refreshButton("Connected Device")->isEnabled());
    key(Qt::Key_Tab);
    QVERIFY2(isOnPage(window()->activeFocusItem()), focused().toUtf8());
    key(Qt::Key_Backtab);
    QVERIFY2(isOnPage(window()->activeFocusItem()), focused().toUtf8());
}

void DeviceKeyboardTest::browsesTheCameraRoll()
{
    phone();
    openByKeyboard();
    QTRY_VERIFY(rowOf("101APPLE"));
    tabTo("100APPLE");
    key(Qt::Key_Right);
    QTRY_VERIFY(rowOf("IMG_3.JPG"));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    QTRY_COMPARE(focused(), utf8("IMG_2.MOV"));
    key(Qt::Key_Space);
    QVERIFY(isTicked("IMG_2.MOV") && shows("1 files selected"));
    key(Qt::Key_Return);
    QVERIFY(!isTicked("IMG_2.MOV") && shows("0 files selected"));
    key(Qt::Key_Left);
    QTRY_COMPARE(focused(), utf8("100APPLE"));
    key(Qt::Key_Space);
    QVERIFY(shows("3 files selected") && isTicked("IMG_1.HEIC"));
    key(Qt::Key_Left);
    QTRY_VERIFY(!rowOf("IMG_1.HEIC"));
    QVERIFY(shows("3 files selected"));
    key(Qt::Key_End);
    QTRY_COMPARE(focused(), utf8("101APPLE"));
    key(Qt::Key_Home);
    QTRY_COMPARE(focused(), utf8("100APPLE"));
    key(Qt::Key_Return);
    QTRY_VERIFY(rowOf("IMG_1.HEIC"));
}

void DeviceKeyboardTest::deletesFromTheKeyboard()
{
    const StandInDevices devices = phone();
    openByKeyboard();
    QTRY_VERIFY(rowOf("101APPLE"));
    tabTo("100APPLE");
    key(Qt::Key_Space);
    tabTo("Delete from Device");
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Delete Permanently"));
    // What Return presses at once does nothing.
    QTRY_COMPARE(focused(), utf8("Cancel"));
    tabTo("Delete Permanently");
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Deleted 3 files."));
    QTRY_VERIFY(rowOf("101APPLE") && !rowOf("100APPLE"));
    // The list that came back has the keyboard again: its only folder, open, or a file in it.
    QTRY_COMPARE(focused(), utf8("101APPLE"));
    QVERIFY(fs::exists(devices.media("a", "101APPLE/IMG_4.HEIC")));
    QVERIFY(!fs::exists(devices.media("a", "100APPLE/IMG_1.HEIC")));
}

void DeviceKeyboardTest::goesOnFromAButtonThatIsDisabled()
{
    const StandInDevices devices = phone();
    fs::create_directories(home() / "Downloads");
    openByKeyboard();
    QTRY_VERIFY(rowOf("101APPLE"));
    tabTo("100APPLE");
    key(Qt::Key_Space);
    tabTo("Export Selected to Downloads");
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Exported 3 files to Downloads."));
    QTRY_COMPARE(focused(), utf8("Export Selected to Downloads"));
    QVERIFY(window()->activeFocusItem()->property("visualFocus").toBool());
    fs::remove_all(home() / "Downloads");
    fs::create_directories(home() / "Downloads");
    devices.hold("afcclient");
    key(Qt::Key_Return);
    QTRY_VERIFY(!named("Export Selected to Downloads")->isEnabled());
    key(Qt::Key_Backtab);
    QCOMPARE(focused(), utf8("100APPLE"));
    devices.letGo("afcclient");
    QTRY_VERIFY(named("Export Selected to Downloads")->isEnabled());
    // Nothing is taken away from where the user has gone.
    QCOMPARE(focused(), utf8("100APPLE"));

    devices.hold("idevice_id");
    QQuickItem* refresh = refreshButton("Connected Device");
    refresh->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    QTRY_VERIFY(!refresh->isEnabled());
    key(Qt::Key_Tab);
    QCOMPARE(window()->activeFocusItem(), refreshButton("Photos & Videos on Anna's iPhone"));
    devices.letGo("idevice_id");
    QTRY_VERIFY(refresh->isEnabled());
}

void DeviceKeyboardTest::keepsTheKeyboardWhileTheCameraRollIsReadAgain()
{
    const StandInDevices devices = phone();
    openByKeyboard();
    QTRY_VERIFY(rowOf("101APPLE"));
    tabTo("100APPLE");
    QQuickItem* refresh = refreshButton("Photos & Videos on Anna's iPhone");
    devices.hold("afcclient");
    click(refresh);
    QTRY_VERIFY(!rowOf("100APPLE"));
    QCOMPARE(window()->activeFocusItem(), refresh);
    devices.letGo("afcclient");
    QTRY_VERIFY(rowOf("100APPLE"));
    QCOMPARE(window()->activeFocusItem(), refresh);
}

void DeviceKeyboardTest::goesOnOnceTheDeviceIsAnother()
{
    const StandInDevices devices = phone();
    openByKeyboard();
    QTRY_VERIFY(rowOf("100APPLE"));
    tabTo("100APPLE");
    devices.unplugAll();
    devices.connect("b", "Ben's iPad");
    devices.addMedia("b", "100APPLE/IMG_1.HEIC");
    click(refreshButton("Connected Device"));
    tabTo("100APPLE");
    QTRY_VERIFY(shows("Photos & Videos on Ben's iPad"));
    QTRY_VERIFY(rowOf("100APPLE"));
    // The camera roll that had the keyboard has gone with its device.
    key(Qt::Key_Tab);
    QTRY_VERIFY(window()->activeFocusItem()->inherits("QQuickControl"));
    const QQuickItem* first = window()->activeFocusItem();
    key(Qt::Key_Tab);
    QTRY_VERIFY(window()->activeFocusItem() != first && !focused().isEmpty());
}

void DeviceKeyboardTest::goesOnOnceTheQuestionHasGoneWithItsDevice()
{
    const StandInDevices devices = phone();
    openByKeyboard();
    QTRY_VERIFY(folderBox("100APPLE"));
    devices.unplugAll();
    devices.connect("b", "Ben's iPad");
    for (const char* path : { "100APPLE/IMG_1.HEIC", "101APPLE/IMG_2.HEIC" })
        devices.addMedia("b", path);
    devices.hold("idevice_id");
    pressItem(refreshButton("Connected Device"));
    pressItem(folderBox("100APPLE"));
    tabTo("Delete from Device");
    key(Qt::Key_Return);
    QTRY_COMPARE(focused(), utf8("Cancel"));
    devices.letGo("idevice_id");
    QTRY_VERIFY(shows("Photos & Videos on Ben's iPad") && rowOf("101APPLE"));
    QTRY_VERIFY(!named("Delete Permanently"));
    // On the page still, and not before everything that Tab leads to.
    key(Qt::Key_Tab);
    QVERIFY2(isOnPage(window()->activeFocusItem()), qPrintable(focused()));
    tabTo("100APPLE");
    key(Qt::Key_Down);
    QTRY_COMPARE(focused(), utf8("101APPLE"));
}

void DeviceKeyboardTest::removesABackupFromTheKeyboard()
{
    addBackup(home(), "one", "Anna's iPhone", 9'000'000);
    addBackup(home(), "two", "Ben's iPad", 5'000'000);
    openByKeyboard();
    QTRY_VERIFY(rowOf("Ben's iPad"));
    tabTo("Anna's iPhone");
    key(Qt::Key_Down);
    QTRY_COMPARE(focused(), utf8("Ben's iPad"));
    key(Qt::Key_Delete);
    QTRY_VERIFY(named("Move to Trash"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Move to Trash"));
    QTRY_COMPARE(focused(), utf8("Ben's iPad"));
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Move to Trash"));
    tabTo("Move to Trash");
    key(Qt::Key_Return);
    QTRY_VERIFY(!rowOf("Ben's iPad") && rowOf("Anna's iPhone"));
    QVERIFY(isInTestTrash(m_test->host.environment, "two"));
    QTRY_COMPARE(focused(), utf8("Anna's iPhone"));
}

void DeviceKeyboardTest::scrollsToWhatTheKeyboardReaches()
{
    const StandInDevices devices = phone();
    for (int i = 0; i < 300; ++i)
        devices.addMedia("a", "102APPLE/IMG_" + std::to_string(1000 + i) + ".HEIC");
    openByKeyboard();
    QTRY_VERIFY(rowOf("102APPLE"));
    tabTo("100APPLE");
    key(Qt::Key_End);
    QTRY_COMPARE(focused(), utf8("102APPLE"));
    key(Qt::Key_Right);
    // The page grows with the next frame.
    QTest::qWait(50);
    key(Qt::Key_End);
    QTRY_COMPARE(focused(), utf8("IMG_1299.HEIC"));
    const auto isSeen = [&] {
        const QQuickItem* row = window()->activeFocusItem();
        const QRectF place = row->mapRectToScene(row->boundingRect());
        return place.top() >= 0 && place.bottom() <= window()->height();
    };
    QTRY_VERIFY(isSeen());
    key(Qt::Key_Space);
    tabTo("Export Selected to Downloads");
    QTRY_VERIFY(isSeen());
}

QTEST_MAIN(DeviceKeyboardTest)
#include "DeviceKeyboardTest.moc"
