// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/UninstallerViewModel.h"
#include "Platform/FileError.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Uninstaller/ScriptedInventory.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
using Phase = UninstallerViewModel::Phase;

/// The screen's state from scan to selection, with inventories of the test's own.
class UninstallerViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void beginsIdleAndEmpty();
    void scansAndShowsWhatWasFound();
    void showsProgressOfTheRunningScanOnly();
    void cancellingTheFirstScanGoesBackToIdle();
    void cancellingALaterScanKeepsWhatWasFound();
    void aFailedScanNeverStaysInScanning();
    void aSecondPressReplacesTheFirstScan();
    void mayBeDestroyedWhileScanning();
    void theSelectionSurvivesASearch();
    void tellsWhatIsSelected();
    void runsByExactIdentifierOnly();
    void followsWhatRunsWhileSeenAndSelected();
    void asksNobodyWhileNothingIsSelectedOrSeen();

private:
    void make(AppInventory::Scan inventory);
    void load(std::vector<InstalledApp> apps);
    InstalledApp app(
        const std::string& name, std::optional<std::string> bundleID, std::vector<ScanItem> leftovers = {});

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<UninstallerViewModel> m_model;
};

void UninstallerViewModelTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_host = std::make_unique<TestHost>(makeTestHost(*m_folder));
}

void UninstallerViewModelTest::cleanup()
{
    m_model.reset();
    drain();
    m_host.reset();
    m_folder.reset();
}

void UninstallerViewModelTest::make(AppInventory::Scan inventory)
{
    m_model = std::make_unique<UninstallerViewModel>(
        m_host->host, std::make_shared<ApplicationIcons>(), std::move(inventory));
}

void UninstallerViewModelTest::load(std::vector<InstalledApp> apps)
{
    make(finding(std::move(apps)));
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
}

InstalledApp UninstallerViewModelTest::app(
    const std::string& name, std::optional<std::string> bundleID, std::vector<ScanItem> leftovers)
{
    return { "/Applications/" + name + ".app", name, std::move(bundleID), 2'000'000, std::move(leftovers) };
}

void UninstallerViewModelTest::beginsIdleAndEmpty()
{
    make({});
    QCOMPARE(m_model->phase(), Phase::Idle);
    QCOMPARE(m_model->progress(), ScanProgress());
    QVERIFY(m_model->apps().empty() && m_model->searchText().isEmpty());
    QVERIFY(!m_model->selectedAppID() && !m_model->selectedApp() && !m_model->isCancellable());
    QCOMPARE(m_model->module()->title(), QStringLiteral("Uninstaller"));
}

void UninstallerViewModelTest::scansAndShowsWhatWasFound()
{
    const std::vector<InstalledApp> apps{ app("Large", "a"), app("Small", std::nullopt) };
    make(finding(apps));
    QSignalSpy phases(m_model.get(), &UninstallerViewModel::phaseChanged);
    m_model->scan();
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(phases.count(), 2);
    QCOMPARE(m_model->apps(), apps);
    QCOMPARE(m_model->filteredApps(), apps);
}

void UninstallerViewModelTest::showsProgressOfTheRunningScanOnly()
{
    HeldScan held;
    make(holdingApps(held, {}));
    m_model->scan();
    QTRY_COMPARE(m_model->currentPath(), QStringLiteral("/Applications/First.app"));
    QCOMPARE(m_model->progress().itemsFound, 1);
    held.mayEnd.release();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    m_model->scan();
    QCOMPARE(m_model->progress(), ScanProgress());
    held.mayEnd.release();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
}

void UninstallerViewModelTest::cancellingTheFirstScanGoesBackToIdle()
{
    HeldScan held;
    make(holdingApps(held, { app("Late", "a") }));
    m_model->scan();
    held.begun.acquire();
    QVERIFY(m_model->isCancellable());
    m_model->cancel();
    QCOMPARE(m_model->phase(), Phase::Idle);
    held.mayEnd.release();
    drain();
    QCOMPARE(m_model->phase(), Phase::Idle);
    QVERIFY(m_model->apps().empty());
}

void UninstallerViewModelTest::cancellingALaterScanKeepsWhatWasFound()
{
    HeldScan held;
    const std::vector<InstalledApp> apps{ app("Kept", "a") };
    make(holdingApps(held, apps));
    held.mayEnd.release();
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    m_model->selectRow(0);
    held.begun.acquire();
    m_model->scan();
    held.begun.acquire();
    m_model->cancel();
    m_model->cancel();
    QCOMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(m_model->apps(), apps);
    QCOMPARE(m_model->selectedApp()->name, std::string("Kept"));
    held.mayEnd.release();
    drain();
    QCOMPARE(m_model->apps(), apps);
}

void UninstallerViewModelTest::aFailedScanNeverStaysInScanning()
{
    auto fails = std::make_shared<std::atomic<bool>>(true);
    make([fails, found = app("Found", "a")](const Host&, const ProgressHandler&, const Cancellation&) {
        if (*fails)
            throw FileError("/Applications", std::make_error_code(std::errc::io_error));
        return std::vector<InstalledApp>{ found };
    });
    m_model->scan();
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QTRY_COMPARE(m_model->phase(), Phase::Idle);
    *fails = false;
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    *fails = true;
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
}

void UninstallerViewModelTest::aSecondPressReplacesTheFirstScan()
{
    HeldScan held;
    make(holdingApps(held, { app("One", "a") }));
    m_model->scan();
    held.begun.acquire();
    m_model->scan();
    m_model->scan();
    QSignalSpy phases(m_model.get(), &UninstallerViewModel::phaseChanged);
    held.mayEnd.release(3);
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    drain();
    QCOMPARE(phases.count(), 1);
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
}

void UninstallerViewModelTest::mayBeDestroyedWhileScanning()
{
    HeldScan held;
    make(holdingApps(held, { app("One", "a") }));
    m_model->scan();
    held.begun.acquire();
    m_model.reset();
    held.mayEnd.release();
    drain();
    QVERIFY(!m_model);
}

void UninstallerViewModelTest::theSelectionSurvivesASearch()
{
    load({ app("Mail", "a"), app("Notes", "b") });
    m_model->selectRow(1);
    QSignalSpy selections(m_model.get(), &UninstallerViewModel::selectedAppChanged);
    m_model->setSearchText(QStringLiteral("MAIL"));
    QCOMPARE(m_model->filteredApps().size(), std::size_t{ 1 });
    QCOMPARE(m_model->selectedApp()->name, std::string("Notes"));
    QCOMPARE(m_model->selectedTexts().name, QStringLiteral("Notes"));
    QCOMPARE(selections.count(), 0);
    m_model->selectRow(7);
    QCOMPARE(m_model->selectedApp()->name, std::string("Notes"));
}

void UninstallerViewModelTest::tellsWhatIsSelected()
{
    load({ app("Mail", "a", { { "/left/a", std::nullopt, "Caches", 3'000'000, true } }), app("Bare", std::nullopt) });
    m_model->selectRow(0);
    const InstalledAppTexts mail = m_model->selectedTexts();
    QCOMPARE(mail.path, QStringLiteral("/Applications/Mail.app"));
    QCOMPARE(mail.sizeText, QStringLiteral("2 MB"));
    QCOMPARE(mail.totalText, QStringLiteral("5 MB"));
    QCOMPARE(mail.leftoversTitle, QStringLiteral("Leftovers (1)"));
    QCOMPARE(mail.note, QStringLiteral("Removes the app and all leftovers to Trash"));
    QCOMPARE(mail.question, QStringLiteral("Uninstall Mail?"));
    QCOMPARE(mail.consequence, QStringLiteral("The app and 1 leftover items will be moved to Trash."));
    QCOMPARE(mail.consent, QStringLiteral("Move to Trash"));
    const LeftoversModel& leftovers = *m_model->leftovers();
    QCOMPARE(leftovers.rowCount(), 1);
    QCOMPARE(leftovers.data(leftovers.index(0), LeftoversModel::PathRole).toString(), QStringLiteral("/left/a"));
    m_model->selectRow(1);
    QCOMPARE(leftovers.rowCount(), 0);
    QCOMPARE(
        m_model->selectedTexts().consequence, QStringLiteral("The app and 0 leftover items will be moved to Trash."));
}

void UninstallerViewModelTest::runsByExactIdentifierOnly()
{
    m_host->workspace->setRunning({ "org.example.App", "" });
    load({ app("Exact", "org.example.App"), app("Case", "org.example.app"), app("Longer", "org.example.App2"),
        app("None", std::nullopt) });
    const std::vector<InstalledApp>& apps = m_model->apps();
    QVERIFY(m_model->isRunning(apps[0]));
    QVERIFY(!m_model->isRunning(apps[1]) && !m_model->isRunning(apps[2]) && !m_model->isRunning(apps[3]));
}

void UninstallerViewModelTest::followsWhatRunsWhileSeenAndSelected()
{
    load({ app("Mail", "org.example.Mail") });
    m_model->selectRow(0);
    m_model->setSeen(true);
    QVERIFY(m_model->isWatching() && !m_model->isSelectedRunning());
    m_host->workspace->setRunning({ "org.example.Mail" });
    QTRY_VERIFY(m_model->isSelectedRunning());
    m_host->workspace->setRunning({});
    QTRY_VERIFY(!m_model->isSelectedRunning());
}

void UninstallerViewModelTest::asksNobodyWhileNothingIsSelectedOrSeen()
{
    load({ app("Mail", "org.example.Mail") });
    m_model->setSeen(true);
    QVERIFY(!m_model->isWatching());
    m_model->selectRow(0);
    QVERIFY(m_model->isWatching());
    m_model->setSeen(false);
    QVERIFY(!m_model->isWatching());
    m_model->setSeen(true);
    QVERIFY(m_model->isWatching());
    m_model->setSelectedAppID(std::nullopt);
    QVERIFY(!m_model->isWatching());
    m_model->selectRow(0);
    m_model->scan();
    QVERIFY(!m_model->isWatching());
}

QTEST_GUILESS_MAIN(UninstallerViewModelTest)
#include "UninstallerViewModelTest.moc"
