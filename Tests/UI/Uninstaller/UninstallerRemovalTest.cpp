// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FileSizeCalculator.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Scan/GatedFileManager.h"
#include "Tests/UI/Uninstaller/ScriptedInventory.h"
#include "UI/UninstallerViewModel.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
using Phase = UninstallerViewModel::Phase;
namespace fs = std::filesystem;

/// What uninstalling does to real files and a real Trash.
class UninstallerRemovalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void movesTheApplicationAndItsLeftoversAndScansAgain();
    void movesOneWithoutAnIdentifierToo();
    void aSecondPressDoesNothing();
    void leavesARunningApplicationAlone();
    void leavesOneAloneThatStartsAtTheLastMoment();
    void finishesWhenTheScreenIsGone();
    void cannotBeCancelledButTheRescanCan();
    void whatCouldNotBeMovedIsListedAgain();

private:
    fs::path home() const { return m_host->host.environment.home; }
    fs::path trashed(const char* path) const { return testTrash(m_host->host.environment) / path; }
    InstalledApp install(const std::string& name, std::optional<std::string> bundleID);
    void load(AppInventory::Scan inventory);
    /// Lists what is still there of these, as a scanner would.
    static AppInventory::Scan listing(std::vector<InstalledApp> apps);

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<Sentinel> m_sentinel;
    std::unique_ptr<UninstallerViewModel> m_model;
};

void UninstallerRemovalTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_host = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_sentinel = std::make_unique<Sentinel>(home() / "Documents/letter.txt");
}

void UninstallerRemovalTest::cleanup()
{
    m_model.reset();
    drain();
    QVERIFY2(m_sentinel->isUnchanged(), m_sentinel->difference().c_str());
    m_sentinel.reset();
    m_host.reset();
    m_folder.reset();
}

InstalledApp UninstallerRemovalTest::install(const std::string& name, std::optional<std::string> bundleID)
{
    const fs::path bundle = home() / "Applications" / (name + ".app");
    writeFile(bundle / "Contents/MacOS/run", std::size_t{ 80'000 });
    std::vector<ScanItem> leftovers;
    if (bundleID) {
        const fs::path caches = home() / "Library/Caches" / *bundleID;
        writeFile(caches / "data", std::size_t{ 30'000 });
        leftovers.emplace_back(caches, std::nullopt, "Caches", FileSizeCalculator::totalSize(caches), true);
    }
    return { bundle, name, std::move(bundleID), FileSizeCalculator::totalSize(bundle), std::move(leftovers) };
}

AppInventory::Scan UninstallerRemovalTest::listing(std::vector<InstalledApp> apps)
{
    return [apps = std::move(apps)](const Host& host, const ProgressHandler&, const Cancellation&) {
        std::vector<InstalledApp> found;
        for (const InstalledApp& app : apps) {
            if (!host.files->fileExists(app.url))
                continue;
            std::vector<ScanItem> leftovers;
            for (const ScanItem& leftover : app.leftovers) {
                if (host.files->fileExists(leftover.url))
                    leftovers.push_back(leftover);
            }
            found.emplace_back(app.url, app.name, app.bundleID, app.sizeInBytes, leftovers);
        }
        return found;
    };
}

void UninstallerRemovalTest::load(AppInventory::Scan inventory)
{
    m_model = std::make_unique<UninstallerViewModel>(
        m_host->host, std::make_shared<ApplicationIcons>(), std::move(inventory));
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
}

void UninstallerRemovalTest::movesTheApplicationAndItsLeftoversAndScansAgain()
{
    load(listing({ install("Gone", "org.example.Gone"), install("Stays", "org.example.Stays") }));
    m_model->selectRow(0);
    QSignalSpy phases(m_model.get(), &UninstallerViewModel::phaseChanged);
    m_model->uninstallSelected();
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QVERIFY(!m_model->selectedAppID());
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
    QCOMPARE(m_model->apps()[0].name, std::string("Stays"));
    QVERIFY(isInTestTrash(m_host->host.environment, "Gone.app"));
    QVERIFY(isInTestTrash(m_host->host.environment, "org.example.Gone"));
    QCOMPARE(readFile(trashed("Gone.app/Contents/MacOS/run")).size(), std::size_t{ 80'000 });
    QVERIFY(fs::exists(home() / "Applications/Stays.app") && fs::exists(home() / "Library/Caches/org.example.Stays"));
}

void UninstallerRemovalTest::movesOneWithoutAnIdentifierToo()
{
    load(listing({ install("Bare", std::nullopt) }));
    m_model->uninstall(m_model->apps()[0]);
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QVERIFY(m_model->apps().empty());
    QVERIFY(isInTestTrash(m_host->host.environment, "Bare.app"));
}

void UninstallerRemovalTest::aSecondPressDoesNothing()
{
    load(listing({ install("First", "a"), install("Second", "b") }));
    const InstalledApp first = m_model->apps()[0];
    const InstalledApp second = m_model->apps()[1];
    m_model->uninstall(first);
    m_model->uninstall(second);
    m_model->uninstall(first);
    m_model->scan();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
    QVERIFY(fs::exists(second.url) && !fs::exists(first.url));
}

void UninstallerRemovalTest::leavesARunningApplicationAlone()
{
    m_host->workspace->setRunning({ "org.example.Runs" });
    load(listing({ install("Runs", "org.example.Runs") }));
    m_model->selectRow(0);
    QVERIFY(m_model->isSelectedRunning());
    m_model->uninstallSelected();
    QCOMPARE(m_model->phase(), Phase::Loaded);
    QVERIFY(fs::exists(m_model->selectedApp()->url));
}

void UninstallerRemovalTest::leavesOneAloneThatStartsAtTheLastMoment()
{
    load(listing({ install("Starts", "org.example.Starts") }));
    m_model->selectRow(0);
    QVERIFY(!m_model->isSelectedRunning());
    m_host->workspace->setRunning({ "org.example.Starts" });
    m_model->uninstallSelected();
    QTRY_COMPARE(m_model->phase(), Phase::Loaded);
    QVERIFY(m_model->isSelectedRunning());
    QVERIFY(fs::exists(m_model->selectedApp()->url));
    QVERIFY(fs::exists(home() / "Library/Caches/org.example.Starts/data"));
}

void UninstallerRemovalTest::finishesWhenTheScreenIsGone()
{
    load(listing({ install("Gone", "org.example.Gone") }));
    m_model->selectRow(0);
    m_model->uninstallSelected();
    m_model.reset();
    drain();
    QVERIFY(isInTestTrash(m_host->host.environment, "Gone.app"));
    QVERIFY(isInTestTrash(m_host->host.environment, "org.example.Gone"));
}

void UninstallerRemovalTest::cannotBeCancelledButTheRescanCan()
{
    auto gated = std::make_shared<GatedFileManager>(m_host->host.files);
    m_host->host.files = gated;
    HeldScan held;
    held.mayEnd.release();
    const InstalledApp gone = install("Gone", "org.example.Gone");
    load(holdingApps(held, { gone, install("Stays", "org.example.Stays") }));
    held.begun.acquire();
    m_model->uninstall(m_model->apps()[0]);
    gated->arrived.acquire();
    QVERIFY(!m_model->isCancellable());
    m_model->cancel();
    QCOMPARE(m_model->phase(), Phase::Scanning);
    QCOMPARE(m_model->currentPath(), QString::fromStdString(gone.url.string()));
    gated->gate.release(2);
    QTRY_VERIFY(m_model->isCancellable());
    held.begun.acquire();
    m_model->cancel();
    QCOMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
    QCOMPARE(m_model->apps()[0].name, std::string("Stays"));
    held.mayEnd.release();
}

void UninstallerRemovalTest::whatCouldNotBeMovedIsListedAgain()
{
    HeldScan held;
    held.mayEnd.release();
    const InstalledApp app = install("Stuck", "org.example.Stuck");
    load(holdingApps(held, { app }));
    held.begun.acquire();
    removeTree(app.url);
    m_model->uninstall(m_model->apps()[0]);
    QTRY_VERIFY(m_model->isCancellable());
    held.begun.acquire();
    m_model->cancel();
    QCOMPARE(m_model->phase(), Phase::Loaded);
    QCOMPARE(m_model->apps().size(), std::size_t{ 1 });
    QVERIFY(isInTestTrash(m_host->host.environment, "org.example.Stuck"));
    held.mayEnd.release();
}

QTEST_GUILESS_MAIN(UninstallerRemovalTest)
#include "UninstallerRemovalTest.moc"
