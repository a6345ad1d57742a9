// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Tours/TourFixture.h"
#include "UI/PreferenceKeys.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// The modules that scan and clean, from the scan to the Trash.
class ScanTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void cleansSystemJunk();
    void actsOnOneFinding();
    void cleansLargeFiles();
    void cleansDuplicatesForGood();
    void findsNothing();
    void cancelsAScan_data();
    void cancelsAScan();

private:
    fs::path library(const char* path) const { return home() / "Library" / path; }
    void scanFrom(const char* module) const;
};

void ScanTourTest::scanFrom(const char* module) const
{
    open(module);
    arriveAt("Start Scan");
    hit(Qt::Key_Return);
}

void ScanTourTest::cleansSystemJunk()
{
    makeCaches();
    scanFrom("System Junk");
    arriveAt("org.example.maps");
    hit(Qt::Key_Down);
    arriveAt("org.example.mail");
    hit(Qt::Key_Space);
    QTRY_VERIFY(tick("org.example.mail") == Tick::Off && tick("org.example.maps") == Tick::On);
    // The legend stands right above the list, and leads into it.
    goTo("User Caches", Qt::Key_Backtab, 1);
    goTo("Log Files", Qt::Key_Right, 1);
    hit(Qt::Key_Return);
    arriveAt("example.log");
    hit(Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(tick("example.log") == Tick::Off);
    hit(Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(tick("example.log") == Tick::On);

    goTo("Clean", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Move to Trash");
    hit(Qt::Key_Escape);
    beAskedNoMore("Move to Trash");
    arriveAt("Clean");
    hit(Qt::Key_Space);
    beAsked("Move to Trash", "Move to Trash");
    hit(Qt::Key_Return);
    beAskedNoMore("Move to Trash");
    arriveAt("Scan Again");
    for (const char* cleaned : { "Caches/org.example.maps", "Logs/example.log" })
        QVERIFY2(wasTrashed(library(cleaned)), cleaned);
    QVERIFY(fs::exists(trashed("org.example.maps/tiles/1.png")));
    for (const char* left : { "Caches/org.example.mail/index", "Caches/com.apple.thumbnails/db" })
        QVERIFY2(fs::exists(library(left)), left);

    hit(Qt::Key_Return);
    QTRY_VERIFY(tick("org.example.mail") == Tick::On);
    QVERIFY(tick("org.example.maps") == Tick::None);
    open("Dashboard");
    arriveAt("Smart Scan");
}

void ScanTourTest::actsOnOneFinding()
{
    makeCaches();
    scanFrom("System Junk");
    arriveAt("org.example.maps");
    hit(Qt::Key_Menu);
    arriveAt("Show in File Manager");
    hit(Qt::Key_Return);
    arriveAt("org.example.maps");
    QTRY_COMPARE(m_test->workspace->shownPaths().size(), std::size_t{ 1 });
    QCOMPARE(m_test->workspace->shownPaths().front(), library("Caches/org.example.maps"));
    hit(Qt::Key_Down);
    hit(Qt::Key_F10, Qt::ShiftModifier);
    goTo("Copy Path", Qt::Key_Down, 1);
    hit(Qt::Key_Return);
    arriveAt("org.example.mail");
    QCOMPARE(QGuiApplication::clipboard()->text().toStdString(), library("Caches/org.example.mail").string());
    hit(Qt::Key_Menu);
    arriveAt("Show in File Manager");
    hit(Qt::Key_Escape);
    arriveAt("org.example.mail");

    goTo("Rescan", Qt::Key_Backtab, 2);
    hit(Qt::Key_Return);
    arriveAt("org.example.maps");
    goTo("Select All", Qt::Key_Backtab, 3);
    hit(Qt::Key_Space);
    arriveAt("Deselect All");
    hit(Qt::Key_Space);
    arriveAt("Select All");
    QTRY_VERIFY(!named("Clean")->isEnabled());
}

void ScanTourTest::cleansLargeFiles()
{
    const fs::path larger = home() / "Movies/larger.mov";
    const fs::path smaller = home() / "Movies/smaller.mov";
    writeFile(larger, std::size_t{ 112'000'000 });
    writeFile(smaller, std::size_t{ 106'000'000 });
    scanFrom("Large & Old Files");
    arriveAt("larger.mov");
    goTo("smaller.mov", Qt::Key_End, 1);
    QTRY_VERIFY(tick("smaller.mov") == Tick::Off);
    hit(Qt::Key_Space);
    QTRY_VERIFY(tick("smaller.mov") == Tick::On);
    goTo("Clean", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Move to Trash");
    goTo("Cancel", Qt::Key_Backtab, 1);
    hit(Qt::Key_Return);
    beAskedNoMore("Move to Trash");
    arriveAt("Clean");
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Move to Trash");
    hit(Qt::Key_Return);
    beAskedNoMore("Move to Trash");
    arriveAt("Scan Again");
    QVERIFY(wasTrashed(smaller) && fs::exists(larger));
    QCOMPARE(fs::file_size(trashed("smaller.mov")), std::uintmax_t{ 106'000'000 });
}

void ScanTourTest::cleansDuplicatesForGood()
{
    m_test->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    const fs::path original = home() / "Pictures/holiday.jpg";
    const fs::path copy = home() / "Pictures/copies/holiday.jpg";
    for (const auto& path : { original, copy })
        writeFile(path, std::string(2'000'000, 'x'));
    fs::last_write_time(original, fs::last_write_time(copy) - std::chrono::hours(1));
    scanFrom("Duplicates");
    arriveAt("holiday.jpg (original)");
    goTo("holiday.jpg", Qt::Key_Down, 1);
    QTRY_VERIFY(tick("holiday.jpg") == Tick::On && tick("holiday.jpg (original)") == Tick::Off);
    goTo("Clean", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    // What cannot be taken back is not what Return presses.
    beAsked("Delete Permanently", "Cancel");
    goTo("Delete Permanently", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    beAskedNoMore("Delete Permanently");
    arriveAt("Scan Again");
    QVERIFY(fs::exists(original) && !fs::exists(copy));
    QVERIFY(!isInTestTrash(m_test->host.environment, "holiday.jpg"));
}

void ScanTourTest::findsNothing()
{
    scanFrom("Duplicates");
    arriveAt("Scan Again");
    QVERIFY(shows(utf8("All Clean!")));
    hit(Qt::Key_Return);
    arriveAt("Scan Again");
}

void ScanTourTest::cancelsAScan_data()
{
    QTest::addColumn<QByteArray>("module");
    for (const char* module : { "System Junk", "Large & Old Files", "Duplicates" })
        QTest::newRow(module) << QByteArray(module);
}

void ScanTourTest::cancelsAScan()
{
    QFETCH(const QByteArray, module);
    makeScansHoldable();
    holdScans();
    scanFrom(module.constData());
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space }) {
        arriveAt("Cancel");
        hit(key);
        arriveAt("Start Scan");
        // What was cancelled ends, and has its thread free for the next.
        letScansGo();
        drain();
        holdScans();
        hit(Qt::Key_Return);
    }
    letScansGo();
    arriveAt("Scan Again");
}

QTEST_MAIN(ScanTourTest)
#include "ScanTourTest.moc"
