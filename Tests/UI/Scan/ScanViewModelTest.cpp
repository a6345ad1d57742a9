// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ScanViewModel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "UI/PreferenceKeys.h"

#include <QSignalSpy>
#include <QtTest>

#include <stdexcept>

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
    void init();
    void cleanup();

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
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PlainNavigation> m_navigation;
    std::unique_ptr<ScanViewModel> m_model;
};

void ScanViewModelTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_host = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_navigation = std::make_unique<PlainNavigation>();
    m_model = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, m_host->host, *m_navigation);
}

void ScanViewModelTest::cleanup()
{
    m_model.reset();
    drain();
    m_navigation.reset();
    m_host.reset();
    m_folder.reset();
}

void ScanViewModelTest::beginsIdleWithNothing()
{
    QCOMPARE(m_model->phase(), Phase::Idle);
    QCOMPARE(m_model->progress(), ScanProgress());
    QVERIFY(m_model->items().empty());
    QCOMPARE(m_model->selection().size(), 0U);
    QVERIFY(!m_model->allSelectableSelected());
}

void ScanViewModelTest::ticksExactlyTheDefaultsAndThenAllAndThenNone()
{
    m_model->start(ScriptedScanner::finding(someItems()));
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QCOMPARE(tickedNames(*m_model), (std::vector<std::string>{ "big", "log" }));
    QCOMPARE(m_model->selectedBytes(), 3'002'000);
    QCOMPARE(m_model->totalBytes(), 3'003'000);
    QCOMPARE(m_model->totalText(), "selected of 3 MB found");
    QVERIFY(!m_model->allSelectableSelected());

    m_model->toggleSelectAll();
    QCOMPARE(tickedNames(*m_model), (std::vector<std::string>{ "big", "kept", "log" }));
    QVERIFY(m_model->allSelectableSelected());

    m_model->toggleSelectAll();
    QVERIFY(tickedNames(*m_model).empty());
    QVERIFY(!m_model->allSelectableSelected());
    QCOMPARE(m_model->selectedBytes(), 0);
}

void ScanViewModelTest::ticksOneRow()
{
    m_model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QSignalSpy changed(m_model.get(), &ScanViewModel::selectionChanged);
    m_model->rows()->setTicked(m_model->items()[1].id, true);
    QCOMPARE(m_model->selectedBytes(), 3'003'000);
    QVERIFY(m_model->allSelectableSelected());
    m_model->rows()->setTicked(m_model->items()[0].id, false);
    QCOMPARE(m_model->selectedBytes(), 3'000);
    QCOMPARE(changed.count(), 2);
}

void ScanViewModelTest::withNoItemsNothingCountsAsAllSelected()
{
    m_model->start(ScriptedScanner::finding({}));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QVERIFY(!m_model->hasItems());
    QVERIFY(!m_model->allSelectableSelected());
    m_model->toggleSelectAll();
    QVERIFY(!m_model->allSelectableSelected());
}

void ScanViewModelTest::cancellingReturnsToIdleWithAnEmptyList()
{
    HeldScan held;
    m_model->start(untilCancelled(held));
    held.begun.acquire();
    m_model->cancel();
    QVERIFY(held.mayEnd.tryAcquire(1, 10'000));
    drain();
    QCOMPARE(m_model->phase(), Phase::Idle);
    QVERIFY(m_model->items().empty());
}

void ScanViewModelTest::aFailedScanReturnsToIdle()
{
    m_model->start(
        std::make_shared<ScriptedScanner>([](const ProgressHandler&, const Cancellation&) -> std::vector<ScanItem> {
            throw std::runtime_error("no such luck");
        }));
    QTRY_COMPARE(m_model->phase(), Phase::Idle);
    QVERIFY(m_model->items().empty());
}

void ScanViewModelTest::aScanRequestStartsAScanOnceWhenShownOrLater()
{
    m_navigation->requestScan(CleanerModule::systemJunk);
    QCOMPARE(m_model->phase(), Phase::Idle);
    m_model->appear();
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QVERIFY(!m_navigation->pendingScan());
    m_model->cancel();

    m_navigation->requestScan(CleanerModule::systemJunk);
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QVERIFY(!m_navigation->pendingScan());
}

void ScanViewModelTest::aScanRequestForAnotherModuleSurvives()
{
    m_model->appear();
    m_navigation->requestScan(CleanerModule::largeFiles);
    QCOMPARE(m_model->phase(), Phase::Idle);
    QVERIFY(m_navigation->pendingScan() == CleanerModule::largeFiles);
}

void ScanViewModelTest::aScanRequestForABusyScreenIsConsumedWithoutASecondScan()
{
    m_model->appear();
    HeldScan held;
    m_model->start(holding(held, someItems()));
    held.begun.acquire();
    m_navigation->requestScan(CleanerModule::systemJunk);
    QVERIFY(!m_navigation->pendingScan());
    held.mayEnd.release();
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QCOMPARE(m_model->items().size(), someItems().size());

    m_navigation->requestScan(CleanerModule::systemJunk);
    QVERIFY(!m_navigation->pendingScan());
    QCOMPARE(m_model->phase(), Phase::Results);
}

void ScanViewModelTest::modulesWithoutScannerDoNotStart()
{
    ScanViewModel model(CleanerModule::maintenance, m_host->host, *m_navigation);
    model.startScan();
    QCOMPARE(model.phase(), Phase::Idle);
}

void ScanViewModelTest::wordsTheConfirmationByThePreferenceAtOnce()
{
    m_model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QSignalSpy changed(m_model.get(), &ScanViewModel::confirmationChanged);
    QCOMPARE(m_model->confirmation().consent, "Move to Trash");
    QVERIFY(!m_model->confirmation().destructive);
    QCOMPARE(m_model->confirmation().text, "3 MB will be moved to Trash. You can restore it from there.");

    m_host->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(m_model->confirmation().consent, "Delete Permanently");
    QVERIFY(m_model->confirmation().destructive);
    QCOMPARE(m_model->confirmation().text, "3 MB will be permanently deleted.");
}

void ScanViewModelTest::namesItemsByIdentityToTheFileManager()
{
    m_model->start(ScriptedScanner::finding(someItems()));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
    QVERIFY(
        m_model->actions()->showInFileManager(m_model->rows()->index(1).data(ScanResultsModel::ItemIdRole).toString()));
    QVERIFY(!m_model->actions()->showInFileManager(QStringLiteral("/nowhere/big")));
    QCOMPARE(m_host->workspace->shownPaths(), std::vector<std::filesystem::path>{ "/nowhere/kept" });
}

QTEST_GUILESS_MAIN(ScanViewModelTest)
#include "ScanViewModelTest.moc"
