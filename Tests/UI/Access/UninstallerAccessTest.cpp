// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestBundles.h"
#include "Tests/UI/Scan/GatedFileManager.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"
#include "Tests/UI/Support/AccessibleTree.h"

#include <QTest>
#include <QThread>

using namespace Korvane;

namespace {

/// Looks for applications until it is told to stop.
class EndlessCatalog final : public ApplicationCatalog {
public:
    std::filesystem::path mainBundle() const override { return {}; }
    std::vector<HostApplication> additionalApplications(const Cancellation& cancellation) const override
    {
        for (;;) {
            cancellation.throwIfCancelled();
            QThread::msleep(1);
        }
    }
    void uninstall(const HostApplication&, const Cancellation&) const override { }
};

} // namespace

/// What a screen reader and the keyboard find on the screen of the applications.
class UninstallerAccessTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void beforeTheScan();
    void whileItScans();
    void theListWithoutAndWithOneSelected();
    void oneWithMoreLeftoversThanFit();
    void oneThatRuns();
    void theQuestion();
    void whileOneIsRemoved();
    void nothingFound();

private:
    void install(const std::string& name, const std::string& identifier) const;
    void installThree() const;
    void scanApps() const;
    void select(const char* name) const;
    QQuickItem* appRow(const char* name) const;
};

void UninstallerAccessTest::install(const std::string& name, const std::string& identifier) const
{
    makeBundle(home() / "Applications" / (name + ".app"), identifier, 500'000);
    writeFile(home() / "Library/Caches" / identifier / "data", std::size_t{ 20'000 });
}

void UninstallerAccessTest::installThree() const
{
    install("Notes", "org.example.Notes");
    install("Mail", "org.example.Mail");
    install("Maps", "org.example.Maps");
}

void UninstallerAccessTest::scanApps() const
{
    press("Uninstaller");
    press("Scan Applications");
    QTRY_VERIFY(named("Search apps"));
}

void UninstallerAccessTest::select(const char* name) const
{
    tabTo("Search apps");
    for (const char* letter = name; *letter != 0; ++letter)
        QTest::keyClick(window(), *letter);
    key(Qt::Key_Down);
    QTRY_VERIFY(named("Uninstall"));
    key(Qt::Key_Up);
    key(Qt::Key_Escape);
}

QQuickItem* UninstallerAccessTest::appRow(const char* name) const
{
    const AccessibleTree tree(window());
    for (const AccessibleNode& node : tree.nodes()) {
        if (node.item->inherits("QQuickItemDelegate") && node.name() == utf8(name))
            return node.item;
    }
    return nullptr;
}

void UninstallerAccessTest::beforeTheScan()
{
    press("Uninstaller");
    QTRY_VERIFY(named("Scan Applications"));
    checkAccess(window(), "the applications before a scan");
}

void UninstallerAccessTest::whileItScans()
{
    m_test->host.applications = std::make_shared<EndlessCatalog>();
    startApplication();
    press("Uninstaller");
    press("Scan Applications");
    QTRY_VERIFY(shows(utf8("Scanning applications…")));
    checkAccess(window(), "a running scan for applications");
    press("Cancel");
    QTRY_VERIFY(named("Scan Applications"));
}

void UninstallerAccessTest::theListWithoutAndWithOneSelected()
{
    installThree();
    scanApps();
    checkAccess(window(), "applications of which none is selected");
    QVERIFY(appRow("Notes") != nullptr);
    const QStringList unselected = shapesOf(appRow("Notes"));
    select("Notes");
    // Not by colour alone.
    QTRY_VERIFY(shapesOf(appRow("Notes")) != unselected);
    checkAccess(window(), "applications of which one is selected");
}

void UninstallerAccessTest::oneWithMoreLeftoversThanFit()
{
    installThree();
    for (const char* place : { "Caches", "Logs", "Containers", "HTTPStorages", "WebKit", "Application Scripts",
             "Application Support", "Saved Application State", "Cookies", "Preferences" })
        writeFile(home() / "Library" / place / "org.example.Notes/data", std::size_t{ 20'000 });
    scanApps();
    select("Notes");
    window()->resize(960, 620);
    checkAccess(window(), "more leftovers than fit");
}

void UninstallerAccessTest::oneThatRuns()
{
    installThree();
    scanApps();
    select("Notes");
    m_test->workspace->setRunning({ "org.example.Notes" });
    QTRY_VERIFY(shows("App is currently running"));
    checkAccess(window(), "an application that runs");
}

void UninstallerAccessTest::theQuestion()
{
    installThree();
    scanApps();
    select("Notes");
    press("Uninstall");
    QTRY_VERIFY(named("Move to Trash"));
    checkAccess(window(), "the question before an application is removed");
}

void UninstallerAccessTest::whileOneIsRemoved()
{
    const auto gated = std::make_shared<GatedFileManager>(m_test->host.files);
    m_test->host.files = gated;
    startApplication();
    installThree();
    scanApps();
    select("Notes");
    press("Uninstall");
    press("Move to Trash");
    QTRY_VERIFY(shows(utf8("Scanning applications…")) && !named("Move to Trash"));
    checkAccess(window(), "an application that is being removed");
    gated->gate.release(100);
    QTRY_VERIFY(shows("Select an application"));
}

void UninstallerAccessTest::nothingFound()
{
    scanApps();
    QTRY_VERIFY(shows("No applications found"));
    checkAccess(window(), "no applications");
    installThree();
    press("Scan Again");
    QTRY_VERIFY(named("Applications"));
    tabTo("Search apps");
    key(Qt::Key_X);
    QTRY_VERIFY(shows("No matching apps"));
    checkAccess(window(), "no matching applications");
}

QTEST_MAIN(UninstallerAccessTest)
#include "UninstallerAccessTest.moc"
