// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/FileError.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QTest>
#include <QThread>

using namespace Korvane;
namespace fs = std::filesystem;

/// From the first press to the Trash.
class ScanScreenTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void scansTogglesCleansAndFindsItInTheTrash();
    void doesEverythingFromTheKeyboard();
    void findingsThatCameInTheBackgroundHaveTheKeyboard();
    void escapeLeavesTheConfirmationWithoutCleaning();
    void deletesForGoodWhenThePreferenceSaysSo();
    void aHomeWithoutJunkIsAllClean();
    void unfoldsWhatCouldNotBeRemovedAndWhy();
    void theRowsMenuCopiesThePathAndShowsTheItem();
    void smartScanOpensTheScreenAndScans();
    void keepsItsHeadingsWhenScriptMemoryIsCollected();
    void goingElsewhereAndComingBackBeginsAfresh();
    void showsARunningScanAndCancelsIt();
    void aScanAskedForElsewhereTakesTheQuestionAway();
    void quittingWhileCleaningFinishesAndRecordsIt();

private:
    ScanViewModel* screen() const { return window()->property("viewModel").value<ContentViewModel*>()->scan(); }
};

void ScanScreenTest::scansTogglesCleansAndFindsItInTheTrash()
{
    makeCaches();
    scan();
    QTRY_VERIFY(shows("User Caches") && shows("Log Files"));
    QTRY_VERIFY(tick("org.example.maps") == Tick::On);
    QTRY_VERIFY(tick("example.log") == Tick::On);
    QVERIFY(tick("com.apple.thumbnails") == Tick::Off);

    pressRow("org.example.mail");
    QTRY_VERIFY(tick("org.example.mail") == Tick::Off);
    press("Select All");
    QTRY_VERIFY(named("Deselect All"));
    QVERIFY(tick("com.apple.thumbnails") == Tick::On && tick("org.example.mail") == Tick::On);
    pressRow("com.apple.thumbnails");
    QTRY_VERIFY(named("Select All"));

    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("3 items moved to Trash or removed"));
    for (const char* name : { "org.example.maps", "org.example.mail", "example.log" })
        QVERIFY2(isInTestTrash(m_test->host.environment, name), name);
    QVERIFY(fs::exists(trashed("org.example.maps/tiles/1.png")));
    QVERIFY(fs::exists(home() / "Library/Caches/com.apple.thumbnails/db"));
    QVERIFY(!fs::exists(home() / "Library/Caches/org.example.maps"));
    const std::int64_t bytes = m_test->host.defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0);
    QVERIFY(bytes >= 1'400'000);
    QVERIFY(shows(QString::fromStdString(formattedBytes(bytes)) + utf8(" cleaned")));
}

void ScanScreenTest::doesEverythingFromTheKeyboard()
{
    makeCaches();
    tabTo("System Junk");
    key(Qt::Key_Return);
    tabTo("Start Scan");
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Clean"));
    tabTo("org.example.maps");
    key(Qt::Key_Space);
    QTRY_VERIFY(tick("org.example.maps") == Tick::Off);
    key(Qt::Key_Down);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.mail"));
    key(Qt::Key_End);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("example.log"));
    key(Qt::Key_Space);
    QTRY_VERIFY(tick("example.log") == Tick::Off);
    tabTo("Clean");
    key(Qt::Key_Return);
    tabTo("Move to Trash");
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("1 items moved to Trash or removed"));
    QVERIFY(fs::exists(trashed("org.example.mail/index")));
    QVERIFY(fs::exists(home() / "Library/Caches/org.example.maps/tiles/1.png"));
    QVERIFY(fs::exists(home() / "Library/Logs/example.log"));
}

void ScanScreenTest::findingsThatCameInTheBackgroundHaveTheKeyboard()
{
    HeldScan held;
    tabTo("System Junk");
    key(Qt::Key_Return);
    tabTo("Start Scan");
    screen()->start(holding(held, { { home() / "copy", std::nullopt, "Caches", 1, true } }));
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Cancel"));
    QQuickWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    held.mayEnd.release();
    QTRY_VERIFY(named("Clean"));

    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("copy"));
}

void ScanScreenTest::escapeLeavesTheConfirmationWithoutCleaning()
{
    makeCaches();
    scan();
    press("Clean");
    QTRY_VERIFY(named("Move to Trash"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Move to Trash"));
    QVERIFY(named("Clean"));
    QVERIFY(fs::exists(home() / "Library/Caches/org.example.maps"));
}

void ScanScreenTest::deletesForGoodWhenThePreferenceSaysSo()
{
    makeCaches();
    m_test->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    scan();
    press("Clean");
    QTRY_VERIFY(named("Delete Permanently"));
    press("Delete Permanently");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(!fs::exists(home() / "Library/Caches/org.example.maps"));
    QVERIFY(!fs::exists(trashed("org.example.maps")));
}

void ScanScreenTest::aHomeWithoutJunkIsAllClean()
{
    press("System Junk");
    press("Start Scan");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("All Clean!"));
    QVERIFY(shows("Nothing found to clean in this module."));
    press("Scan Again");
    QTRY_VERIFY(named("Scan Again"));
}

void ScanScreenTest::unfoldsWhatCouldNotBeRemovedAndWhy()
{
    makeCaches();
    scan();
    fs::remove_all(home() / "Library/Caches/org.example.maps");
    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("2 items moved to Trash or removed"));
    QVERIFY(shows("1 items could not be removed"));
    QTRY_VERIFY(!named("Move to Trash"));
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Scan Again"));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("Show Details"));
    key(Qt::Key_Return);
    const QString gone = QString::fromStdString((home() / "Library/Caches/org.example.maps").string());
    QTRY_VERIFY2(shows(gone), qPrintable(visibleTexts(window()).join(" | ")));
    const FileError reason(home(), std::make_error_code(std::errc::no_such_file_or_directory));
    QVERIFY(shows(QString::fromStdString(reason.localizedDescription())));
    press("Hide Details");
    QTRY_VERIFY(!shows(gone));
}

void ScanScreenTest::theRowsMenuCopiesThePathAndShowsTheItem()
{
    makeCaches();
    scan();
    QTRY_VERIFY(row("org.example.mail"));
    QQuickItem* item = row("org.example.mail");
    const QPoint middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    QTest::mouseClick(window(), Qt::RightButton, Qt::NoModifier, middle);
    QTRY_VERIFY(shows("Copy Path"));
    QVERIFY(tick("org.example.mail") == Tick::On);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    const std::string path = (home() / "Library/Caches/org.example.mail").string();
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QString::fromStdString(path));
    QTRY_VERIFY(!shows("Copy Path"));

    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.mail"));
    key(Qt::Key_Menu);
    QTRY_VERIFY(shows("Copy Path"));
    key(Qt::Key_Return);
    QTRY_COMPARE(m_test->workspace->shownPaths(), std::vector<fs::path>{ path });
    QVERIFY(tick("org.example.mail") == Tick::On);
}

void ScanScreenTest::smartScanOpensTheScreenAndScans()
{
    makeCaches();
    press("Smart Scan");
    QTRY_VERIFY(named("Clean"));
    QTRY_VERIFY(row("org.example.maps"));
}

void ScanScreenTest::keepsItsHeadingsWhenScriptMemoryIsCollected()
{
    for (int i = 0; i < 60; ++i)
        writeFile(home() / "Library/Caches" / ("org.example." + std::to_string(i)) / "data", std::size_t{ 5'000 });
    writeFile(home() / "Library/Logs/example.log", std::size_t{ 1'000 });
    scan();
    for (const Qt::Key there : { Qt::Key_End, Qt::Key_Home }) {
        m_app->engine().collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        tabTo("Clean");
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        key(there);
        QTRY_VERIFY(shows(there == Qt::Key_End ? "Log Files" : "User Caches"));
    }
    QVERIFY(shows("User Caches"));
}

void ScanScreenTest::goingElsewhereAndComingBackBeginsAfresh()
{
    makeCaches();
    scan();
    press("Duplicates");
    QTRY_VERIFY(named("Start Scan"));
    press("System Junk");
    QTRY_VERIFY(named("Start Scan"));
    QVERIFY(!named("Clean"));
}

void ScanScreenTest::showsARunningScanAndCancelsIt()
{
    press("System Junk");
    QTRY_VERIFY(named("Start Scan"));
    QSemaphore ended;
    screen()->start(std::make_shared<ScriptedScanner>(
        [&ended](const ProgressHandler& progress, const Cancellation& cancellation) -> std::vector<ScanItem> {
            progress({ "/somewhere/deep", 1234, 5'000'000 });
            while (!cancellation.isCancelled())
                QThread::msleep(1);
            ended.release();
            throw CancellationError();
        }));
    QTRY_VERIFY(shows(QLocale().toString(1234) + utf8(" found")));
    QVERIFY(shows(utf8("Scanning…")) && shows("5 MB") && shows("/somewhere/deep"));
    press("Cancel");
    QTRY_VERIFY(named("Start Scan"));
    QVERIFY(ended.tryAcquire(1, 10'000));
    QVERIFY(!shows(utf8("Scanning…")));
}

void ScanScreenTest::aScanAskedForElsewhereTakesTheQuestionAway()
{
    makeCaches();
    press("Duplicates");
    QTRY_VERIFY(named("Start Scan"));
    screen()->start(ScriptedScanner::finding({ { home() / "copy", std::nullopt, "Set 1", 1, true } }));
    press("Clean");
    QTRY_VERIFY(named("Move to Trash"));
    m_app->scanSystemJunk();
    QTRY_VERIFY(row("org.example.maps"));
    QTRY_VERIFY(!named("Move to Trash"));
    pressRow("org.example.maps");
    QTRY_VERIFY(tick("org.example.maps") == Tick::Off);
    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(shows("2 items moved to Trash or removed"));
    QVERIFY(visibleTexts(window()).filter("could not be removed").isEmpty());
}

void ScanScreenTest::quittingWhileCleaningFinishesAndRecordsIt()
{
    makeCaches();
    scan();
    const std::int64_t bytes = screen()->selectedBytes();
    screen()->clean(true);
    m_app.reset();
    finishBackgroundWork();
    QCOMPARE(m_test->host.defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0), bytes);
    QVERIFY(m_test->host.defaults->doubleForKey(PreferenceKeys::lastCleanedDate, 0.0) > 0.0);
    QVERIFY(fs::exists(trashed("org.example.maps/tiles/1.png")));
}

QTEST_MAIN(ScanScreenTest)
#include "ScanScreenTest.moc"
