// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestHost.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "UI/ScanViewModel.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
using Phase = ScanViewModel::Phase;

namespace {

std::vector<ScanItem> someItems()
{
    return {
        { "/nowhere/big", std::nullopt, "User Caches", 3'000'000, true },
        { "/nowhere/kept", std::nullopt, "User Caches", 1'000, false },
        { "/nowhere/log", std::nullopt, "Log Files", 2'000, true },
    };
}

} // namespace

/// What reaches the screen of a scan that runs, and what no longer does.
class ScanRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void progressAfterTheScreenIsGoneIsDropped();
    void progressOfAnOldScanIsDropped();
    void progressArrivesAtMostTenTimesASecond();
    void aNewScanForgetsItemsSelectionAndProgress();
    void destroyingTheScreenCancelsTheScan();
    void aLateCompletionOfACancelledScanIsDropped();
    void aResultThatComesAfterCancellingIsDropped();
    void aSecondScanCancelsTheFirst();

private:
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PlainNavigation> m_navigation;
    std::unique_ptr<ScanViewModel> m_model;
};

void ScanRunTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_host = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_navigation = std::make_unique<PlainNavigation>();
    m_model = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, m_host->host, *m_navigation);
}

void ScanRunTest::cleanup()
{
    m_model.reset();
    drain();
    m_navigation.reset();
    m_host.reset();
    m_folder.reset();
}

void ScanRunTest::progressAfterTheScreenIsGoneIsDropped()
{
    HeldScan held;
    m_model->start(std::make_shared<ScriptedScanner>([&held](const ProgressHandler& progress, const Cancellation&) {
        held.begun.release();
        held.mayEnd.acquire();
        progress({ "/too/late", 1, 1 });
        return someItems();
    }));
    held.begun.acquire();
    m_model.reset();
    held.mayEnd.release();
    drain();
    QVERIFY(!m_model);
}

void ScanRunTest::progressOfAnOldScanIsDropped()
{
    HeldScan first;
    m_model->start(std::make_shared<ScriptedScanner>([&first](const ProgressHandler& progress, const Cancellation&) {
        first.begun.release();
        first.mayEnd.acquire();
        progress({ "/stale", 7, 7 });
        return someItems();
    }));
    first.begun.acquire();
    HeldScan second;
    m_model->start(holding(second, {}));
    first.mayEnd.release();
    second.begun.acquire();
    QCoreApplication::processEvents();
    QCOMPARE(m_model->progress(), ScanProgress());
    second.mayEnd.release();
    drain();
    QCOMPARE(m_model->progress(), ScanProgress());
}

void ScanRunTest::progressArrivesAtMostTenTimesASecond()
{
    QSignalSpy changed(m_model.get(), &ScanViewModel::progressChanged);
    QElapsedTimer elapsed;
    elapsed.start();
    m_model->start(std::make_shared<ScriptedScanner>([](const ProgressHandler& progress, const Cancellation&) {
        QElapsedTimer running;
        running.start();
        for (std::int64_t count = 0; running.elapsed() < 350; ++count)
            progress({ "/somewhere", count, count });
        return std::vector<ScanItem>();
    }));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    const qsizetype reports = changed.count() - 1; // Starting announces the empty record.
    QVERIFY2(reports >= 2, qPrintable(QString::number(reports)));
    QVERIFY2(reports <= elapsed.elapsed() / 100 + 1, qPrintable(QString::number(reports)));
}

void ScanRunTest::aNewScanForgetsItemsSelectionAndProgress()
{
    m_model->start(std::make_shared<ScriptedScanner>([](const ProgressHandler& progress, const Cancellation&) {
        progress({ "/nowhere/big", 1, 3'000'000 });
        return someItems();
    }));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    // A scan that ends at once may be over before its report is on the screen.
    QTRY_COMPARE(m_model->progress(), (ScanProgress{ "/nowhere/big", 1, 3'000'000 }));
    QCOMPARE(m_model->progressTexts().foundText, "1 found");
    QCOMPARE(m_model->progressTexts().foundBytesText, "3 MB");
    QCOMPARE(m_model->progressTexts().currentPath, "/nowhere/big");

    HeldScan held;
    m_model->start(holding(held, {}));
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QVERIFY(m_model->items().empty());
    QCOMPARE(m_model->selection().size(), 0U);
    QCOMPARE(m_model->selectedBytes(), 0);
    QCOMPARE(m_model->progress(), ScanProgress());
    QCOMPARE(m_model->progressTexts().foundText, "0 found");
    held.mayEnd.release();
    drain();
}

void ScanRunTest::destroyingTheScreenCancelsTheScan()
{
    HeldScan held;
    m_model->start(untilCancelled(held));
    held.begun.acquire();
    m_model.reset();
    QVERIFY(held.mayEnd.tryAcquire(1, 10'000));
}

void ScanRunTest::aLateCompletionOfACancelledScanIsDropped()
{
    HeldScan first;
    HeldScan second;
    m_model->start(holding(first, { { "/stale", std::nullopt, "Stale", 1, true } }));
    first.begun.acquire();
    m_model->start(holding(second, someItems()));
    first.mayEnd.release();
    second.begun.acquire();
    second.mayEnd.release();
    drain();
    QCOMPARE(m_model->phase(), Phase::Results);
    QCOMPARE(m_model->items().size(), someItems().size());
    QCOMPARE(m_model->items().front().displayName, "big");
}

void ScanRunTest::aResultThatComesAfterCancellingIsDropped()
{
    HeldScan held;
    m_model->start(holding(held, someItems()));
    held.begun.acquire();
    m_model->cancel();
    held.mayEnd.release();
    drain();
    QCOMPARE(m_model->phase(), Phase::Idle);
    QVERIFY(m_model->items().empty());
}

void ScanRunTest::aSecondScanCancelsTheFirst()
{
    HeldScan first;
    m_model->start(untilCancelled(first));
    first.begun.acquire();
    m_model->start(ScriptedScanner::finding(someItems()));
    QVERIFY(first.mayEnd.tryAcquire(1, 10'000));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    drain();
    QCOMPARE(m_model->phase(), Phase::Results);
    QCOMPARE(m_model->items().size(), someItems().size());
}

QTEST_GUILESS_MAIN(ScanRunTest)
#include "ScanRunTest.moc"
