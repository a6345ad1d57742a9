// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/GatedFileManager.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"
#include "UI/PreferenceKeys.h"

#include <QTest>
#include <QThread>

using namespace Korvane;
namespace fs = std::filesystem;

/// What a screen reader and the keyboard find on the screens that scan and clean, in every phase.
class ScanAccessTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void beforeTheScan_data();
    void beforeTheScan();
    void whileItScans();
    void theResults();
    void theResultsPartlyChosen();
    void theMenuOfARow();
    void theQuestion_data();
    void theQuestion();
    void whileItCleans();
    void whatWasCleaned();
    void nothingToClean();
    void largeFilesAndDuplicates_data();
    void largeFilesAndDuplicates();
    void everythingIsPressedWithoutPointerAndKeys();
    void nothingIsToldByColourAlone();

private:
    static void act(QQuickItem* item, const QString& action = QAccessibleActionInterface::pressAction());
    ScanViewModel* screen() const { return window()->property("viewModel").value<ContentViewModel*>()->scan(); }
};

void ScanAccessTest::beforeTheScan_data()
{
    QTest::addColumn<QByteArray>("module");
    for (const char* module : { "System Junk", "Large & Old Files", "Duplicates" })
        QTest::newRow(module) << QByteArray(module);
}

void ScanAccessTest::beforeTheScan()
{
    QFETCH(QByteArray, module);
    press(module.constData());
    QTRY_VERIFY(named("Start Scan"));
    checkAccess(window(), module.constData());
}

void ScanAccessTest::whileItScans()
{
    press("System Junk");
    QTRY_VERIFY(named("Start Scan"));
    screen()->start(std::make_shared<ScriptedScanner>(
        [](const ProgressHandler& progress, const Cancellation& cancellation) -> std::vector<ScanItem> {
            progress({ "/somewhere/deep", 1234, 5'000'000 });
            while (!cancellation.isCancelled())
                QThread::msleep(1);
            throw CancellationError();
        }));
    QTRY_VERIFY(shows("/somewhere/deep"));
    checkAccess(window(), "a running scan");
    press("Cancel");
    QTRY_VERIFY(named("Start Scan"));
}

void ScanAccessTest::theResults()
{
    makeCaches();
    for (int i = 0; i < 60; ++i)
        writeFile(home() / "Library/Caches" / ("org.example." + std::to_string(i)) / "data", std::size_t{ 5'000 });
    scan();
    QTRY_VERIFY(row("com.apple.thumbnails"));
    checkAccess(window(), "results of which some are in use and most are out of view");
    // Rows that are made anew, and such that are used again.
    tabTo("org.example.maps");
    key(Qt::Key_End);
    checkTree(window(), "the last of the results");
    key(Qt::Key_PageUp);
    key(Qt::Key_PageUp);
    checkTree(window(), "results in the middle");
    key(Qt::Key_Home);
    checkTree(window(), "the first of the results again");
}

void ScanAccessTest::theResultsPartlyChosen()
{
    makeCaches();
    scan();
    pressRow("org.example.mail");
    QTRY_VERIFY(tick("org.example.mail") == Tick::Off);
    QVERIFY(QAccessible::queryAccessibleInterface(heading("User Caches"))->state().checkStateMixed);
    checkAccess(window(), "results of which some are chosen");
    press("Select All");
    press("Deselect All");
    QTRY_VERIFY(!named("Clean")->isEnabled());
    checkAccess(window(), "results of which none is chosen");
}

void ScanAccessTest::theMenuOfARow()
{
    makeCaches();
    scan();
    tabTo("org.example.maps");
    key(Qt::Key_Menu);
    QTRY_VERIFY(shows("Copy Path"));
    key(Qt::Key_Down);
    checkTree(window(), "the menu of a row");
}

void ScanAccessTest::theQuestion_data()
{
    QTest::addColumn<bool>("movesToTrash");
    QTest::newRow("to the Trash") << true;
    QTest::newRow("for good") << false;
}

void ScanAccessTest::theQuestion()
{
    QFETCH(bool, movesToTrash);
    m_test->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, movesToTrash);
    makeCaches();
    scan();
    press("Clean");
    QTRY_VERIFY(named(movesToTrash ? "Move to Trash" : "Delete Permanently"));
    checkAccess(window(), "the question before cleaning");
}

void ScanAccessTest::whileItCleans()
{
    const auto gated = std::make_shared<GatedFileManager>(m_test->host.files);
    m_test->host.files = gated;
    startApplication();
    makeCaches();
    scan();
    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(shows(utf8("Cleaning…")) && !named("Move to Trash"));
    checkAccess(window(), "a running cleaning");
    gated->gate.release(100);
    QTRY_VERIFY(named("Scan Again"));
}

void ScanAccessTest::whatWasCleaned()
{
    makeCaches();
    scan();
    fs::remove_all(home() / "Library/Caches/org.example.maps");
    fs::remove_all(home() / "Library/Caches/org.example.mail");
    press("Clean");
    press("Move to Trash");
    QTRY_VERIFY(named("Show Details"));
    QTRY_VERIFY(!named("Move to Trash"));
    checkAccess(window(), "what was cleaned");
    press("Show Details");
    QTRY_VERIFY(named("Hide Details"));
    checkAccess(window(), "what could not be cleaned");
}

void ScanAccessTest::nothingToClean()
{
    press("System Junk");
    press("Start Scan");
    QTRY_VERIFY(shows("All Clean!"));
    checkAccess(window(), "nothing to clean");
}

void ScanAccessTest::largeFilesAndDuplicates_data()
{
    QTest::addColumn<QByteArray>("module");
    for (const char* module : { "Large & Old Files", "Duplicates" })
        QTest::newRow(module) << QByteArray(module);
}

void ScanAccessTest::largeFilesAndDuplicates()
{
    QFETCH(QByteArray, module);
    writeFile(home() / "Movies/one.mov", std::string(3'000'000, 'a'));
    writeFile(home() / "Movies/two/one.mov", std::string(3'000'000, 'a'));
    fs::resize_file(home() / "Movies/one.mov", 200'000'000);
    fs::resize_file(home() / "Movies/two/one.mov", 200'000'000);
    press(module.constData());
    press("Start Scan");
    QTRY_VERIFY_WITH_TIMEOUT(named("Clean") || named("Scan Again"), 20'000);
    checkAccess(window(), module.constData());
}

void ScanAccessTest::act(QQuickItem* item, const QString& action)
{
    QVERIFY(item != nullptr);
    QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(action);
}

void ScanAccessTest::everythingIsPressedWithoutPointerAndKeys()
{
    makeCaches();
    act(named("System Junk"));
    QTRY_VERIFY(named("Start Scan"));
    act(named("Start Scan"));
    QTRY_VERIFY(row("org.example.mail") && heading("User Caches"));
    act(row("org.example.mail"));
    QTRY_VERIFY(tick("org.example.mail") == Tick::Off);
    act(row("org.example.mail"), QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(tick("org.example.mail") == Tick::On);
    act(heading("User Caches"));
    QTRY_VERIFY(tick("org.example.mail") == Tick::Off && tick("org.example.maps") == Tick::Off);
    QTRY_VERIFY(!QAccessible::queryAccessibleInterface(heading("User Caches"))->state().checked);
    act(heading("User Caches"), QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(tick("org.example.mail") == Tick::On && tick("org.example.maps") == Tick::On);
    act(named("Clean"));
    QTRY_VERIFY(named("Move to Trash"));
    act(named("Move to Trash"));
    QTRY_VERIFY(named("Scan Again"));
    QVERIFY(fs::exists(trashed("org.example.mail/index")));
}

void ScanAccessTest::nothingIsToldByColourAlone()
{
    makeCaches();
    const QStringList module = shapesOf(named("System Junk"));
    scan();
    QVERIFY(shapesOf(named("System Junk")) != module);
    QTRY_VERIFY(heading("Log Files"));
    // A press leaves the pointer, and with it what shows where that is, on the row: both times.
    pressRow("example.log");
    QTRY_VERIFY(tick("example.log") == Tick::Off);
    const QStringList untickedRow = shapesOf(row("example.log"));
    const QStringList untickedHeading = shapesOf(heading("Log Files"));
    const QStringList mixedHeading = shapesOf(heading("User Caches"));
    pressRow("example.log");
    QTRY_VERIFY(tick("example.log") == Tick::On);
    QVERIFY(shapesOf(row("example.log")) != untickedRow);
    QVERIFY(shapesOf(heading("Log Files")) != untickedHeading);
    QVERIFY(shapesOf(heading("Log Files")) != mixedHeading && untickedHeading != mixedHeading);
    // What is in use is told by a sign of its own.
    QVERIFY(shapesOf(row("com.apple.thumbnails")).contains(QStringLiteral("exclamationmark.shield")));
}

QTEST_MAIN(ScanAccessTest)
#include "ScanAccessTest.moc"
