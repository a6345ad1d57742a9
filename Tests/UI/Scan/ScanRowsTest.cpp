// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QAccessible>
#include <QKeySequence>
#include <QTest>

using namespace Korvane;

namespace {

/// Whether a row lies in its list below the heading that stays at the top, and is not one kept to be used again.
bool isShown(QQuickItem* row)
{
    constexpr double headingHeight = 44;
    QQuickItem* list = row->parentItem()->parentItem();
    QQuickItem* shown = nullptr;
    QMetaObject::invokeMethod(
        list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, shown), Q_ARG(int, row->property("index").toInt()));
    const double top = row->mapToItem(list, QPointF()).y();
    return shown == row && top >= headingHeight && top < list->height();
}

/// The rows and headings of the list that can be seen.
void collectRows(QQuickItem* item, QList<QQuickItem*>& headings, QList<QQuickItem*>& rows)
{
    if (!item->isVisible())
        return;
    const bool isRow = item->inherits("QQuickCheckDelegate") && item->property("category").isValid();
    if (isRow && isShown(item))
        rows.append(item);
    if (!isRow && item->property("section").userType() == QMetaType::QString)
        headings.append(item);
    for (QQuickItem* child : item->childItems())
        collectRows(child, headings, rows);
}

} // namespace

/// What rows and the keyboard can do.
class ScanRowsTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void spaceWithShiftTicksTheCategory();
    void anywhereOnARowThePointerShowsTheWholePath();
    void aSetOfNamesOfOneFileSaysThatCleaningFreesNothing();
    void aSetOfDuplicatesStandsUnderItsLabelWithTheOriginalFirst();
    void theHeadingOfASetNeverTicksTheOriginal();
    void theKeyboardFollowsToTheScreenThatItOpened();
    void everyRowIsUnderTheHeadingOfItsSetWhereverTheListGoes();

private:
    /// Scans a home with one set of three equal songs, the oldest of which is "song.flac".
    void scanSongs() const;
    /// Compares each row that can be seen with the heading above it.
    void verifyHeadings() const;
    /// Whether the row that the keyboard acts on can be seen whole.
    bool isFocusShown() const;

    const char* songs = "song.flac \u2014 3 copies, 1.2 MB each";
};

void ScanRowsTest::scanSongs() const
{
    const std::string content(1'200'000, 's');
    for (const char* name : { "Music/a copy.flac", "Music/song.flac", "Music/z copy.flac" })
        writeFile(home() / name, content);
    const auto made = std::filesystem::last_write_time(home() / "Music/song.flac");
    std::filesystem::last_write_time(home() / "Music/song.flac", made - std::chrono::hours(2));
    press("Duplicates");
    press("Start Scan");
    QTRY_VERIFY(named("Clean"));
    QTRY_VERIFY(row("song.flac (original)") && row("a copy.flac") && row("z copy.flac"));
}

void ScanRowsTest::spaceWithShiftTicksTheCategory()
{
    makeCaches();
    scan();
    tabTo("org.example.maps");
    key(Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(tick("org.example.maps") == Tick::Off && tick("org.example.mail") == Tick::Off);
    key(Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(tick("org.example.maps") == Tick::On && tick("org.example.mail") == Tick::On);
    QVERIFY(tick("com.apple.thumbnails") == Tick::Off);
    key(Qt::Key_Space, Qt::ShiftModifier);
    QTRY_VERIFY(tick("org.example.maps") == Tick::Off && tick("org.example.mail") == Tick::Off);
    QVERIFY(tick("example.log") == Tick::On);
    key(Qt::Key_Space);
    QTRY_VERIFY(tick("org.example.maps") == Tick::On);
    QVERIFY(tick("org.example.mail") == Tick::Off);
}

void ScanRowsTest::anywhereOnARowThePointerShowsTheWholePath()
{
    makeCaches();
    scan();
    const QString path = QString::fromStdString((home() / "Library/Caches/org.example.mail").string());
    for (const double place : { 0.02, 0.1, 0.45, 0.98 }) {
        QTRY_VERIFY(row("org.example.mail"));
        QVERIFY(!shows(path));
        QQuickItem* item = row("org.example.mail");
        const QPointF point(item->width() * place, item->height() / 2);
        QTest::mouseMove(window(), item->mapToScene(point).toPoint());
        QTRY_VERIFY2(shows(path), qPrintable(QString::number(place)));
        QTest::mouseMove(window(), QPoint(2, 2));
        QTRY_VERIFY(!shows(path));
    }
}

void ScanRowsTest::aSetOfNamesOfOneFileSaysThatCleaningFreesNothing()
{
    const QString help
        = utf8("All files of this set are one file under several names: removing copies frees no space.");
    writeFile(home() / "Films/holiday.mov", std::string(1'100'000, 'h'));
    std::filesystem::create_hard_link(home() / "Films/holiday.mov", home() / "Films/same.mov");
    writeFile(home() / "Music/song.flac", std::string(1'200'000, 's'));
    writeFile(home() / "Music/copy.flac", std::string(1'200'000, 's'));
    press("Duplicates");
    press("Start Scan");
    const std::vector<std::pair<const char*, bool>> rows{ { "same.mov", true }, { "holiday.mov", true },
        { "copy.flac", false }, { "song.flac", false } };
    QTRY_VERIFY(named("Clean"));
    for (const auto& [name, isSaid] : rows) {
        QQuickItem* item = nullptr;
        QTRY_VERIFY2((item = row(name)) || (item = row((std::string(name) + " (original)").c_str())), name);
        const QString description = QAccessible::queryAccessibleInterface(item)->text(QAccessible::Description);
        QCOMPARE(description.contains(help), isSaid);
        const QPointF middle(item->width() / 2, item->height() / 2);
        QTest::mouseMove(window(), item->mapToScene(middle).toPoint());
        QTRY_VERIFY2(!visibleTexts(window())
                          .filter(QString::fromStdString((home() / (isSaid ? "Films" : "Music") / name).string()))
                          .isEmpty(),
            name);
        QCOMPARE(!visibleTexts(window()).filter(help).isEmpty(), isSaid);
        QTest::mouseMove(window(), QPoint(2, 2));
        QTRY_VERIFY(visibleTexts(window()).filter(help).isEmpty());
    }
}

void ScanRowsTest::aSetOfDuplicatesStandsUnderItsLabelWithTheOriginalFirst()
{
    scanSongs();
    QVERIFY2(shows(utf8(songs)), qPrintable(visibleTexts(window()).join(" | ")));
    const auto height = [&](const char* name) { return row(name)->mapToScene(QPointF()).y(); };
    QVERIFY(height("song.flac (original)") < height("a copy.flac"));
    QVERIFY(height("song.flac (original)") < height("z copy.flac"));
    QVERIFY(heading(songs)->mapToScene(QPointF()).y() < height("song.flac (original)"));
    QVERIFY(tick("song.flac (original)") == Tick::Off);
    QVERIFY(tick("a copy.flac") == Tick::On && tick("z copy.flac") == Tick::On);
    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("2 items moved to Trash or removed"));
    QVERIFY(std::filesystem::exists(home() / "Music/song.flac"));
    QVERIFY(std::filesystem::exists(trashed("a copy.flac")));
    QVERIFY(!std::filesystem::exists(home() / "Music/z copy.flac"));
}

void ScanRowsTest::theHeadingOfASetNeverTicksTheOriginal()
{
    scanSongs();
    const auto state = [this] { return heading(songs)->property("checkState").toInt(); };
    QCOMPARE(state(), int(Qt::PartiallyChecked));
    pressHeading(songs);
    QTRY_VERIFY(tick("a copy.flac") == Tick::Off && tick("z copy.flac") == Tick::Off);
    QVERIFY(tick("song.flac (original)") == Tick::Off);
    QCOMPARE(state(), int(Qt::Unchecked));
    pressHeading(songs);
    QTRY_VERIFY(tick("a copy.flac") == Tick::On && tick("z copy.flac") == Tick::On);
    QVERIFY(tick("song.flac (original)") == Tick::Off);
    QCOMPARE(state(), int(Qt::PartiallyChecked));
    press("Select All");
    QTRY_VERIFY(tick("song.flac (original)") == Tick::On);
    QCOMPARE(state(), int(Qt::Checked));
    pressHeading(songs);
    QTRY_VERIFY(tick("song.flac (original)") == Tick::Off && tick("a copy.flac") == Tick::Off);
}

void ScanRowsTest::theKeyboardFollowsToTheScreenThatItOpened()
{
    makeCaches();
    tabTo("Smart Scan");
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Clean"));
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.maps"));
    press("Dashboard");
    QTRY_VERIFY(named("Smart Scan"));
    controls(window(), utf8("Duplicates")).last()->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Start Scan"));
    QVERIFY(window()->activeFocusItem()->property("visualFocus").toBool());
}

void ScanRowsTest::verifyHeadings() const
{
    QList<QQuickItem*> headings;
    QList<QQuickItem*> rows;
    collectRows(window()->contentItem(), headings, rows);
    int compared = 0;
    for (const QQuickItem* row : std::as_const(rows)) {
        const double top = row->mapToScene(QPointF()).y();
        const QQuickItem* nearest = nullptr;
        for (const QQuickItem* heading : std::as_const(headings)) {
            const double y = heading->mapToScene(QPointF()).y();
            if (y < top && (!nearest || y > nearest->mapToScene(QPointF()).y()))
                nearest = heading;
        }
        if (!nearest)
            continue;
        QCOMPARE(nearest->property("section").toString(), row->property("category").toString());
        ++compared;
    }
    QVERIFY2(compared > 4, qPrintable(QString::number(rows.size()) + " rows"));
}

bool ScanRowsTest::isFocusShown() const
{
    QQuickItem* row = window()->activeFocusItem();
    const QQuickItem* list = row->parentItem()->parentItem();
    return isShown(row) && row->mapToItem(list, QPointF(0, row->height())).y() <= list->height();
}

void ScanRowsTest::everyRowIsUnderTheHeadingOfItsSetWhereverTheListGoes()
{
    for (int set = 0; set < 30; ++set) {
        const std::string content(1'100'000 + 1'000 * static_cast<std::size_t>(set), 'a');
        writeFile(home() / "One" / ("song " + std::to_string(set)), content);
        writeFile(home() / "Two" / ("song " + std::to_string(set)), content);
    }
    press("Duplicates");
    press("Start Scan");
    QTRY_VERIFY(named("Clean"));
    tabTo("Rescan");
    // The legend of the shares, and then the list.
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    const std::vector<Qt::Key> moves{ Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown,
        Qt::Key_PageUp, Qt::Key_Up, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home };
    QTest::qWait(150);
    verifyHeadings();
    for (const Qt::Key move : moves) {
        key(move);
        QTest::qWait(150);
        verifyHeadings();
        if (QTest::currentTestFailed())
            return;
        QVERIFY2(isFocusShown(), qPrintable(QKeySequence(move).toString()));
    }
}

QTEST_MAIN(ScanRowsTest)
#include "ScanRowsTest.moc"
