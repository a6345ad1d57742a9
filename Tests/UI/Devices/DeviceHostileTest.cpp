// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Korvane;
namespace fs = std::filesystem;

/// What devices and backups may call themselves, and how much of it there may be.
class DeviceHostileTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void hostileNamesAreShownHarmlessly();
    void manyPhotosStayUsable();
    void manyBackupsAndDevicesAreListed();
};

namespace {

qsizetype count(const QQuickItem* item, const char* kind)
{
    qsizetype found = item->inherits(kind) ? 1 : 0;
    for (const QQuickItem* child : item->childItems())
        found += count(child, kind);
    return found;
}

/// The height of the highest item of this class that is painted in memory of its own.
qreal highest(const QQuickItem* item, const char* kind)
{
    qreal height = item->inherits(kind) ? item->height() : 0;
    for (const QQuickItem* child : item->childItems())
        height = std::max(height, highest(child, kind));
    return height;
}

} // namespace

void DeviceHostileTest::hostileNamesAreShownHarmlessly()
{
    const StandInDevices devices = tools();
    devices.connect(
        "a", "%1 <b>\xe2\x80\xaegpj\x1b[31m" + std::string(90'000, 'w'), "9223372036854775807", "-9223372036854775808");
    devices.addMedia("a", "100APPLE/<img src=x>%1 \xe2\x80\xae.HEIC");
    addBackup(home(), "one", "&lt;b&gt;%1" + std::string(500'000, 'x'));
    open();
    QTRY_VERIFY(!visibleTexts(window()).filter(QStringLiteral(" used of ")).isEmpty());
    QTRY_VERIFY(!visibleTexts(window()).filter(QStringLiteral("<img src=x>%1 [U+202E].HEIC")).isEmpty());
    QTRY_VERIFY(!visibleTexts(window()).filter(QStringLiteral("<b>%1xx")).isEmpty());
    for (const QString& text : visibleTexts(window())) {
        QVERIFY2(text.size() <= 256, qPrintable(text.left(80)));
        QVERIFY(!text.contains(QChar(0x202e)) && !text.contains(QChar(0x1b)));
    }
    pressItem(folderBox("100APPLE"));
    press("Delete from Device");
    QTRY_VERIFY(named("Delete Permanently"));
    QQuickItem* confirm = named("Delete Permanently");
    QTRY_VERIFY(confirm->mapToScene(QPointF(0, confirm->height())).y() <= window()->height());
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Delete Permanently"));
}

void DeviceHostileTest::manyPhotosStayUsable()
{
    const StandInDevices devices = tools();
    devices.connect("a", "Anna's iPhone");
    std::string folders;
    for (int folder = 100; folder < 300; ++folder)
        folders += std::to_string(folder) + "APPLE\n";
    std::string files;
    for (int file = 1000; file < 1250; ++file)
        files += "IMG_" + std::to_string(file) + ".HEIC\n";
    devices.claim(folders, files);
    open();
    QTRY_VERIFY(shows(utf8("Reading camera roll…")));
    QTRY_VERIFY(!visibleTexts(window()).filter(QStringLiteral(" of 200 folders")).isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(rowOf("100APPLE"), 30'000);
    QElapsedTimer clock;
    clock.start();
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(rowOf("IMG_1000.HEIC"));
    pressItem(folderBox("100APPLE"));
    QVERIFY(shows("250 files selected"));
    rowOf("100APPLE")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_End);
    QTRY_COMPARE(focused(), utf8("299APPLE"));
    key(Qt::Key_Space);
    QVERIFY(shows("500 files selected"));
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(count(window()->contentItem(), "QQuickItemDelegate") < 80);
    QVERIFY(highest(window()->contentItem(), "QQuickPaintedItem") <= 2 * window()->height());
}

void DeviceHostileTest::manyBackupsAndDevicesAreListed()
{
    const StandInDevices devices = tools();
    for (int i = 0; i < 30; ++i)
        devices.connect("device" + std::to_string(i), "Phone " + std::to_string(i));
    for (int i = 0; i < 400; ++i)
        fs::create_directories(backupsIn(home()) / ("line\n" + std::to_string(10'000 + i)));
    open();
    QTRY_VERIFY_WITH_TIMEOUT(shows("Phone 0"), 20'000);
    QTRY_VERIFY(shows("Photos & Videos on Phone 0"));
    const auto isBackup = [](const QString& text) { return text.startsWith(utf8("line\u240a")); };
    const auto backups = [&] {
        const QStringList texts = visibleTexts(window());
        return std::count_if(texts.begin(), texts.end(), isBackup);
    };
    QTRY_VERIFY(backups() > 3);
    QVERIFY(backups() < 60);
    QVERIFY(highest(window()->contentItem(), "QQuickPaintedItem") <= 2 * window()->height());
}

QTEST_MAIN(DeviceHostileTest)
#include "DeviceHostileTest.moc"
