// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanModelFixture.h"
#include "UI/PreferenceKeys.h"

#include <QSignalSpy>
#include <QtTest>

#include <stdexcept>

using namespace Korvane;
using Phase = ScanViewModel::Phase;

namespace {

std::vector<std::string> tickedNames(const ScanViewModel& model)
{
    std::vector<std::string> names;
    for (const ScanItem& item : model.items()) {
        if (model.selection().contains(item.id))
            names.push_back(item.displayName);
    }
    return names;
}

} // namespace

class ScanViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_screen = std::make_unique<ScanModelFixture>(); }
    void cleanup() { m_screen.reset(); }

    void beginsIdleWithNothing();
    void ticksExactlyTheDefaultsAndThenAllAndThenNone();
    void ticksOneRow();
    void withNoItemsNothingCountsAsAllSelected();
    void cancellingReturnsToIdleWithAnEmptyList();
    void aFailedScanReturnsToIdle();
    void aScanRequestStartsAScanOnceWhenShownOrLater();
    void aScanRequestForAnotherModuleSurvives();
    void aScanRequestForABusyScreenIsConsumedWithoutASecondScan();
    void modulesWithoutScannerDoNotStart();
    void wordsTheConfirmationByThePreferenceAtOnce();
    void namesItemsByIdentityToTheFileManager();

private:
    std::unique_ptr<ScanModelFixture> m_screen;
};

void ScanViewModelTest::beginsIdleWithNothing()
{
    QCOMPARE(m_screen->model->phase(), Phase::Idle);
    QCOMPARE(m_screen->model->progress(), ScanProgress());
    QVERIFY(m_screen->model->items().empty());
    QCOMPARE(m_screen->model->selection().size(), 0U);
    QVERIFY(!m_screen->model->allSelectableSelected());
}

void ScanViewModelTest::ticksExactlyTheDefaultsAndThenAllAndThenNone()
{
    m_screen->model->start(ScriptedScanner::finding(someItems()));
    QCOMPARE(m_screen->model->phase(), Phase::Scanning);
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QCOMPARE(tickedNames(*m_screen->model), (std::vector<std::string>{ "big", "log" }));
    QCOMPARE(m_screen->model->selectedBytes(), 3'002'000);
    QCOMPARE(m_screen->model->totalBytes(), 3'003'000);
    QCOMPARE(m_screen->model->totalText(), "selected of 3 MB found");
    QVERIFY(!m_screen->model->allSelectableSelected());

    m_screen->model->toggleSelectAll();
    QCOMPARE(tickedNames(*m_screen->model), (std::vector<std::string>{ "big", "kept", "log" }));
    QVERIFY(m_screen->model->allSelectableSelected());

    m_screen->model->toggleSelectAll();
    QVERIFY(tickedNames(*m_screen->model).empty());
    QVERIFY(!m_screen->model->allSelectableSelected());
    QCOMPARE(m_screen->model->selectedBytes(), 0);
}

void ScanViewModelTest::ticksOneRow()
{
    m_screen->model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QSignalSpy changed(m_screen->model.get(), &ScanViewModel::selectionChanged);
    m_screen->model->rows()->setTicked(m_screen->model->items()[1].id, true);
    QCOMPARE(m_screen->model->selectedBytes(), 3'003'000);
    QVERIFY(m_screen->model->allSelectableSelected());
    m_screen->model->rows()->setTicked(m_screen->model->items()[0].id, false);
    QCOMPARE(m_screen->model->selectedBytes(), 3'000);
    QCOMPARE(changed.count(), 2);
}

void ScanViewModelTest::withNoItemsNothingCountsAsAllSelected()
{
    m_screen->model->start(ScriptedScanner::finding({}));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QVERIFY(!m_screen->model->hasItems());
    QVERIFY(!m_screen->model->allSelectableSelected());
    m_screen->model->toggleSelectAll();
    QVERIFY(!m_screen->model->allSelectableSelected());
}

void ScanViewModelTest::cancellingReturnsToIdleWithAnEmptyList()
{
    HeldScan held;
    m_screen->model->start(untilCancelled(held));
    held.begun.acquire();
    m_screen->model->cancel();
    QVERIFY(held.mayEnd.tryAcquire(1, 10'000));
    drain();
    QCOMPARE(m_screen->model->phase(), Phase::Idle);
    QVERIFY(m_screen->model->items().empty());
}

void ScanViewModelTest::aFailedScanReturnsToIdle()
{
    m_screen->model->start(
        std::make_shared<ScriptedScanner>([](const ProgressHandler&, const Cancellation&) -> std::vector<ScanItem> {
            throw std::runtime_error("no such luck");
        }));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Idle);
    QVERIFY(m_screen->model->items().empty());
}

void ScanViewModelTest::aScanRequestStartsAScanOnceWhenShownOrLater()
{
    m_screen->navigation.requestScan(CleanerModule::systemJunk);
    QCOMPARE(m_screen->model->phase(), Phase::Idle);
    m_screen->model->appear();
    QCOMPARE(m_screen->model->phase(), Phase::Scanning);
    QVERIFY(!m_screen->navigation.pendingScan());
    m_screen->model->cancel();

    m_screen->navigation.requestScan(CleanerModule::systemJunk);
    QCOMPARE(m_screen->model->phase(), Phase::Scanning);
    QVERIFY(!m_screen->navigation.pendingScan());
}

void ScanViewModelTest::aScanRequestForAnotherModuleSurvives()
{
    m_screen->model->appear();
    m_screen->navigation.requestScan(CleanerModule::largeFiles);
    QCOMPARE(m_screen->model->phase(), Phase::Idle);
    QVERIFY(m_screen->navigation.pendingScan() == CleanerModule::largeFiles);
}

void ScanViewModelTest::aScanRequestForABusyScreenIsConsumedWithoutASecondScan()
{
    m_screen->model->appear();
    HeldScan held;
    m_screen->model->start(holding(held, someItems()));
    held.begun.acquire();
    m_screen->navigation.requestScan(CleanerModule::systemJunk);
    QVERIFY(!m_screen->navigation.pendingScan());
    held.mayEnd.release();
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QCOMPARE(m_screen->model->items().size(), someItems().size());

    m_screen->navigation.requestScan(CleanerModule::systemJunk);
    QVERIFY(!m_screen->navigation.pendingScan());
    QCOMPARE(m_screen->model->phase(), Phase::Results);
}

void ScanViewModelTest::modulesWithoutScannerDoNotStart()
{
    ScanViewModel model(CleanerModule::maintenance, m_screen->services.host, m_screen->navigation);
    model.startScan();
    QCOMPARE(model.phase(), Phase::Idle);
}

void ScanViewModelTest::wordsTheConfirmationByThePreferenceAtOnce()
{
    m_screen->model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QSignalSpy changed(m_screen->model.get(), &ScanViewModel::confirmationChanged);
    QCOMPARE(m_screen->model->confirmation().consent, "Move to Trash");
    QVERIFY(!m_screen->model->confirmation().destructive);
    QCOMPARE(m_screen->model->confirmation().text, "3 MB will be moved to Trash. You can restore it from there.");

    m_screen->services.host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(m_screen->model->confirmation().consent, "Delete Permanently");
    QVERIFY(m_screen->model->confirmation().destructive);
    QCOMPARE(m_screen->model->confirmation().text, "3 MB will be permanently deleted.");
}

void ScanViewModelTest::namesItemsByIdentityToTheFileManager()
{
    m_screen->model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_screen->model->phase(), Phase::Results);
    QVERIFY(m_screen->model->actions()->showInFileManager(
        m_screen->model->rows()->index(1).data(ScanResultsModel::ItemIdRole).toString()));
    QVERIFY(!m_screen->model->actions()->showInFileManager(QStringLiteral("/nowhere/big")));
    QCOMPARE(m_screen->services.workspace->shownPaths(), std::vector<std::filesystem::path>{ "/nowhere/kept" });
}

QTEST_GUILESS_MAIN(ScanViewModelTest)
#include "ScanViewModelTest.moc"
