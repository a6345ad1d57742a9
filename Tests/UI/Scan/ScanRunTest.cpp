// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanModelFixture.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
using Phase = ScanViewModel::Phase;

/// What reaches the screen of a scan that runs, and what no longer does.
class ScanRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_screen = std::make_unique<ScanModelFixture>(); }
    void cleanup() { m_screen.reset(); }

    void progressAfterTheScreenIsGoneIsDropped();
    void progressOfAnOldScanIsDropped();
    void progressArrivesAtMostTenTimesASecond();
    void aNewScanForgetsItemsSelectionAndProgress();
    void destroyingTheScreenCancelsTheScan();
    void aLateCompletionOfACancelledScanIsDropped();
    void aResultThatComesAfterCancellingIsDropped();
    void aSecondScanCancelsTheFirst();

private:
    std::unique_ptr<ScanModelFixture> m_screen;
};

void ScanRunTest::progressAfterTheScreenIsGoneIsDropped()
{
    HeldScan held;
    m_screen->model->start(
        std::make_shared<ScriptedScanner>([&held](const ProgressHandler& progress, const Cancellation&) {
            held.begun.release();
            held.mayEnd.acquire();
            progress({ "/too/late", 1, 1 });
            return someItems();
        }));
    held.begun.acquire();
    m_screen->model.reset();
    held.mayEnd.release();
    drain();
    QVERIFY(!m_screen->model);
}

void ScanRunTest::progressOfAnOldScanIsDropped()
{
    HeldScan first;
    m_screen->model->start(
        std::make_shared<ScriptedScanner>([&first](const ProgressHandler& progress, const Cancellation&) {
            first.begun.release();
            first.mayEnd.acquire();
            progress({ "/stale", 7, 7 });
            return someItems();
        }));
    first.begun.acquire();
    HeldScan second;
    m_screen->model->start(holding(second, {}));
    first.mayEnd.release();
    second.begun.acquire();
    QCoreApplication::processEvents();
    QCOMPARE(m_screen->model->progress(), ScanProgress());
    second.mayEnd.release();
    drain();
    QCOMPARE(m_screen->model->progress(), ScanProgress());
}

void ScanRunTest::progressArrivesAtMostTenTimesASecond()
{
    QSignalSpy changed(m_screen->model.get(), &ScanViewModel::progressChanged);
    QElapsedTimer elapsed;
    elapsed.start();
    m_screen->model->start(std::make_shared<ScriptedScanner>([](const ProgressHandler& progress, const Cancellation&) {
        QElapsedTimer running;
        running.start();
        for (std::int64_t count = 0; running.elapsed() < 350; ++count)
            progress({ "/somewhere", count, count });
        return std::vector<ScanItem>();
    }));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    const qsizetype reports = changed.count() - 1; // Starting announces the empty record.
    QVERIFY2(reports >= 2, qPrintable(QString::number(reports)));
    QVERIFY2(reports <= elapsed.elapsed() / 100 + 1, qPrintable(QString::number(reports)));
}

void ScanRunTest::aNewScanForgetsItemsSelectionAndProgress()
{
    m_screen->model->start(std::make_shared<ScriptedScanner>([](const ProgressHandler& progress, const Cancellation&) {
        progress({ "/nowhere/big", 1, 3'000'000 });
        return someItems();
    }));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    // A scan that ends at once may be over before its report is on the screen.
    QTRY_COMPARE(m_screen->model->progress(), (ScanProgress{ "/nowhere/big", 1, 3'000'000 }));
    QCOMPARE(m_screen->model->progressTexts().foundText, "1 found");
    QCOMPARE(m_screen->model->progressTexts().foundBytesText, "3 MB");
    QCOMPARE(m_screen->model->progressTexts().currentPath, "/nowhere/big");

    HeldScan held;
    m_screen->model->start(holding(held, {}));
    QCOMPARE(m_screen->model->phase(), Phase::Scanning);
    QVERIFY(m_screen->model->items().empty());
    QCOMPARE(m_screen->model->selection().size(), 0U);
    QCOMPARE(m_screen->model->selectedBytes(), 0);
    QCOMPARE(m_screen->model->progress(), ScanProgress());
    QCOMPARE(m_screen->model->progressTexts().foundText, "0 found");
    held.mayEnd.release();
    drain();
}

void ScanRunTest::destroyingTheScreenCancelsTheScan()
{
    HeldScan held;
    m_screen->model->start(untilCancelled(held));
    held.begun.acquire();
    m_screen->model.reset();
    QVERIFY(held.mayEnd.tryAcquire(1, 10'000));
}

void ScanRunTest::aLateCompletionOfACancelledScanIsDropped()
{
    HeldScan first;
    HeldScan second;
    m_screen->model->start(holding(first, { { "/stale", std::nullopt, "Stale", 1, true } }));
    first.begun.acquire();
    m_screen->model->start(holding(second, someItems()));
    first.mayEnd.release();
    second.begun.acquire();
    second.mayEnd.release();
    drain();
    QCOMPARE(m_screen->model->phase(), Phase::Results);
    QCOMPARE(m_screen->model->items().size(), someItems().size());
    QCOMPARE(m_screen->model->items().front().displayName, "big");
}

void ScanRunTest::aResultThatComesAfterCancellingIsDropped()
{
    HeldScan held;
    m_screen->model->start(holding(held, someItems()));
    held.begun.acquire();
    m_screen->model->cancel();
    held.mayEnd.release();
    drain();
    QCOMPARE(m_screen->model->phase(), Phase::Idle);
    QVERIFY(m_screen->model->items().empty());
}

void ScanRunTest::aSecondScanCancelsTheFirst()
{
    HeldScan first;
    m_screen->model->start(untilCancelled(first));
    first.begun.acquire();
    m_screen->model->start(ScriptedScanner::finding(someItems()));
    QVERIFY(first.mayEnd.tryAcquire(1, 10'000));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    drain();
    QCOMPARE(m_screen->model->phase(), Phase::Results);
    QCOMPARE(m_screen->model->items().size(), someItems().size());
}

QTEST_GUILESS_MAIN(ScanRunTest)
#include "ScanRunTest.moc"
