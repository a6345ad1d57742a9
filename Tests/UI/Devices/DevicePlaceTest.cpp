// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QTest>

using namespace Korvane;

namespace {

/// What `measure` gives once it has been the same for half a second, or after ten seconds.
template <typename Measure> double settled(Measure measure)
{
    double value = measure();
    int same = 0;
    for (int round = 0; round < 200 && same < 10; ++round) {
        QTest::qWait(50);
        const double now = measure();
        same = qFuzzyCompare(now + 1, value + 1) ? same + 1 : 0;
        value = now;
    }
    return value;
}

} // namespace

/// Where the screen of the devices stands, and what of it is seen.
class DevicePlaceTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void staysWhereItWasWhenReadAgain();
    void staysWhereItWasAfterADeletion();
    void showsWhatIsDoneAsItBegins();
    void reachesEveryDeviceByKeyboard();

private:
    StandInDevices phoneOfManyPhotos() const;
    /// Opens the screen at a file in the middle of the last folder, with the keyboard on it.
    void goToAPhoto() const;
    double heightOf(const char* name) const { return rowOf(name)->mapToScene(QPointF()).y(); }
    double heightInList(const char* name) const
    {
        const QQuickItem* row = rowOf(name);
        return row->mapToItem(row->parentItem()->parentItem(), QPointF()).y();
    }
    bool isSeen(const QQuickItem* item) const
    {
        const QRectF place = item->mapRectToScene(item->boundingRect());
        return place.height() > 0 && place.top() >= 0 && place.bottom() <= window()->height();
    }
    bool isSeen(const char* text) const
    {
        const QQuickItem* item = textIn(window()->contentItem(), utf8(text));
        return item != nullptr && isSeen(item);
    }
    static const QQuickItem* textIn(const QQuickItem* item, const QString& text);
    QQuickItem* page() const
    {
        QQuickItem* item = refreshButton("Connected Device");
        while (!item->inherits("QQuickFlickable"))
            item = item->parentItem();
        return item;
    }
};

const QQuickItem* DevicePlaceTest::textIn(const QQuickItem* item, const QString& text)
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits("QQuickText") && item->property("text").toString() == text)
        return item;
    for (const QQuickItem* child : item->childItems()) {
        if (const QQuickItem* found = textIn(child, text))
            return found;
    }
    return nullptr;
}

StandInDevices DevicePlaceTest::phoneOfManyPhotos() const
{
    StandInDevices devices = phone();
    for (int i = 0; i < 300; ++i)
        devices.addMedia("a", "102APPLE/IMG_" + std::to_string(1000 + i) + ".HEIC");
    return devices;
}

void DevicePlaceTest::goToAPhoto() const
{
    open();
    QTRY_VERIFY(rowOf("102APPLE"));
    tabTo("100APPLE");
    key(Qt::Key_End);
    key(Qt::Key_Right);
    // The page grows with the next frame.
    QTest::qWait(50);
    key(Qt::Key_End);
    QTRY_COMPARE(focused(), utf8("IMG_1299.HEIC"));
    for (int i = 0; i < 20; ++i)
        key(Qt::Key_Up);
    QTRY_COMPARE(focused(), utf8("IMG_1279.HEIC"));
    QTRY_VERIFY(isSeen(window()->activeFocusItem()));
}

void DevicePlaceTest::staysWhereItWasWhenReadAgain()
{
    const StandInDevices devices = phoneOfManyPhotos();
    goToAPhoto();
    key(Qt::Key_Space);
    const double height = settled([this] { return heightOf("IMG_1279.HEIC"); });
    // A photo that is new, and one that has gone, in other folders.
    devices.addMedia("a", "100APPLE/IMG_9.HEIC");
    std::filesystem::remove(devices.media("a", "101APPLE/IMG_4.HEIC"));
    devices.hold("afcclient");
    refreshButton("Photos & Videos on Anna's iPhone")->forceActiveFocus(Qt::MouseFocusReason);
    key(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("Reading camera roll…")));
    QTest::qWait(100);
    devices.letGo("afcclient");
    QTRY_VERIFY(!shows(utf8("Reading camera roll…")));
    QTRY_VERIFY(rowOf("IMG_1279.HEIC"));
    QTRY_COMPARE(heightOf("IMG_1279.HEIC"), height);
    QVERIFY(isTicked("IMG_1279.HEIC") && !isTicked("IMG_1280.HEIC") && shows("1 files selected"));
    tabTo("IMG_1279.HEIC");
    key(Qt::Key_Down);
    QTRY_COMPARE(focused(), utf8("IMG_1280.HEIC"));
    QTRY_VERIFY(isSeen(window()->activeFocusItem()));
}

void DevicePlaceTest::staysWhereItWasAfterADeletion()
{
    const StandInDevices devices = phoneOfManyPhotos();
    goToAPhoto();
    key(Qt::Key_Space);
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    key(Qt::Key_Up);
    tabTo("Delete from Device");
    key(Qt::Key_Return);
    QTRY_COMPARE(focused(), utf8("Cancel"));
    const double height = settled([this] { return heightInList("IMG_1279.HEIC"); });
    // A folder above has gone as well.
    std::filesystem::remove(devices.media("a", "101APPLE/IMG_4.HEIC"));
    tabTo("Delete Permanently");
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Deleted 2 files."));
    // The next one that is left is where they were.
    QTRY_COMPARE(focused(), utf8("IMG_1281.HEIC"));
    QTRY_COMPARE(heightInList("IMG_1281.HEIC"), height);
    QTRY_VERIFY(isSeen(rowOf("IMG_1281.HEIC")) && isSeen("Deleted 2 files."));
}

void DevicePlaceTest::showsWhatIsDoneAsItBegins()
{
    window()->resize(960, 620);
    const StandInDevices devices = phoneOfManyPhotos();
    goToAPhoto();
    key(Qt::Key_Space);
    // The buttons are the last that is seen of the page.
    QQuickItem* button = named("Export Selected to Downloads");
    const QPointF bottom = button->mapToItem(page(), QPointF(0, button->height()));
    page()->setProperty("contentY", page()->property("contentY").toDouble() + bottom.y() - page()->height());
    QTest::qWait(50);
    QVERIFY(isSeen(button));
    devices.hold("afcclient");
    pressItem(button);
    QTRY_VERIFY(isSeen("Exporting 1 files to Downloads…"));
    devices.letGo("afcclient");
    QTRY_VERIFY(shows("Exported 1 files to Downloads.") || shows("Exported 0 files, 1 failed."));
    QTRY_VERIFY(isSeen("Exported 1 files to Downloads.") || isSeen("Exported 0 files, 1 failed."));
    // What comes to its end later takes nobody back who has gone elsewhere.
    devices.hold("afcclient");
    pressItem(button);
    QTest::qWait(100);
    page()->setProperty("contentY", 0);
    devices.letGo("afcclient");
    QTRY_VERIFY(button->isEnabled());
    QTest::qWait(100);
    QCOMPARE(page()->property("contentY").toDouble(), 0.0);
}

void DevicePlaceTest::reachesEveryDeviceByKeyboard()
{
    const StandInDevices devices = tools();
    for (const char* name : { "One", "Two", "Three", "Four", "Five", "Six" })
        devices.connect(name, name);
    open();
    QTRY_VERIFY(deviceRow("One"));
    tabTo("One");
    for (const char* name : { "Two", "Three", "Four", "Five", "Six" }) {
        key(Qt::Key_Down);
        QTRY_COMPARE(focused(), utf8(name));
    }
    const QQuickItem* row = window()->activeFocusItem();
    const QQuickItem* list = row->parentItem()->parentItem();
    QTRY_VERIFY(row->mapToItem(list, QPointF()).y() + row->height() <= list->height());
    QVERIFY(isSeen(row));
    key(Qt::Key_Home);
    QTRY_COMPARE(focused(), utf8("One"));
}

QTEST_MAIN(DevicePlaceTest)
#include "DevicePlaceTest.moc"
