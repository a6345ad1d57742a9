// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestBundles.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// From the first press to the Trash, in the real window.
class UninstallerScreenTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void scansSearchesSelectsAndUninstalls();
    void doesEverythingFromTheKeyboard();
    void followsWhetherTheApplicationRuns();
    void escapeLeavesTheConfirmation();
    void saysSoWhenThereIsNothing();
    void showsTheLastOfManyApplications();
    void comesBackAfresh();

private:
    void install(const std::string& name, const std::string& identifier, std::size_t bytes) const;
    void installThree() const;
    void scanApps() const;
    QQuickItem* appRow(const char* name) const { return appRowIn(window()->contentItem(), utf8(name)); }
    void pressApp(const char* name) const;
    static QQuickItem* appRowIn(QQuickItem* item, const QString& name);
};

void UninstallerScreenTest::install(const std::string& name, const std::string& identifier, std::size_t bytes) const
{
    makeBundle(home() / "Applications" / (name + ".app"), identifier, bytes);
    writeFile(home() / "Library/Caches" / identifier / "data", std::size_t{ 20'000 });
}

void UninstallerScreenTest::installThree() const
{
    install("Voicemail Tool", "org.example.Voice", 900'000);
    install("Notes", "org.example.Notes", 500'000);
    install("Mail", "org.example.Mail", 100'000);
    writeFile(home() / "Library/Preferences/org.example.Mail.plist", std::size_t{ 3'000 });
}

void UninstallerScreenTest::scanApps() const
{
    press("Uninstaller");
    press("Scan Applications");
    QTRY_VERIFY(named("Search apps"));
}

QQuickItem* UninstallerScreenTest::appRowIn(QQuickItem* item, const QString& name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits("QQuickItemDelegate") && accessibleName(item) == name)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = appRowIn(child, name))
            return found;
    }
    return nullptr;
}

void UninstallerScreenTest::pressApp(const char* name) const
{
    QTRY_VERIFY2(appRow(name), name);
    click(appRow(name));
}

void UninstallerScreenTest::scansSearchesSelectsAndUninstalls()
{
    installThree();
    press("Uninstaller");
    QTRY_VERIFY(shows("Remove apps with all their leftovers"));
    press("Scan Applications");
    QTRY_VERIFY(shows("Select an application"));
    QVERIFY(shows("Pick an app to see its size and leftover files."));
    QTRY_VERIFY(appRow("Voicemail Tool") && appRow("Notes") && appRow("Mail"));

    press("Search apps");
    for (const Qt::Key letter : { Qt::Key_M, Qt::Key_A, Qt::Key_I, Qt::Key_L })
        key(letter, Qt::ShiftModifier);
    QTRY_VERIFY(!appRow("Notes"));
    QVERIFY(appRow("Voicemail Tool"));
    pressApp("Mail");
    QTRY_VERIFY(shows("Leftovers (2)"));
    QVERIFY(shows("Application") && shows("org.example.Mail.plist"));
    QVERIFY(shows(QString::fromStdString((home() / "Library/Caches/org.example.Mail").string())));
    QVERIFY(shows("Removes the app and all leftovers to Trash"));

    press("Uninstall");
    QTRY_VERIFY(shows("Uninstall Mail?"));
    QVERIFY(shows("The app and 2 leftover items will be moved to Trash."));
    press("Move to Trash");
    QTRY_VERIFY(shows("Select an application"));
    QVERIFY(!appRow("Mail"));
    for (const char* name : { "Mail.app", "org.example.Mail", "org.example.Mail.plist" })
        QVERIFY2(isInTestTrash(m_test->host.environment, name), name);
    QVERIFY(!fs::exists(home() / "Applications/Mail.app"));
    QVERIFY(fs::exists(home() / "Applications/Notes.app/Contents/MacOS/program"));
    QVERIFY(fs::exists(home() / "Library/Caches/org.example.Voice/data"));
}

void UninstallerScreenTest::doesEverythingFromTheKeyboard()
{
    installThree();
    tabTo("Uninstaller");
    key(Qt::Key_Return);
    tabTo("Scan Applications");
    key(Qt::Key_Return);
    QTRY_VERIFY(appRow("Notes"));
    tabTo("Search apps");
    key(Qt::Key_Down);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Voicemail Tool"));
    key(Qt::Key_Down);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Notes"));
    key(Qt::Key_End);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Mail"));
    key(Qt::Key_N);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Search apps"));
    QTRY_VERIFY(!appRow("Voicemail Tool") || !appRow("Mail"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(appRow("Voicemail Tool") && appRow("Mail"));
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    key(Qt::Key_Down);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Notes"));
    key(Qt::Key_Return);
    QTRY_COMPARE(accessibleName(window()->activeFocusItem()), utf8("Uninstall"));
    key(Qt::Key_Return);
    QTRY_VERIFY(named("Move to Trash"));
    tabTo("Move to Trash");
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Select an application"));
    QVERIFY(isInTestTrash(m_test->host.environment, "Notes.app"));
    QVERIFY(fs::exists(home() / "Applications/Mail.app"));
}

void UninstallerScreenTest::followsWhetherTheApplicationRuns()
{
    installThree();
    scanApps();
    pressApp("Notes");
    QTRY_VERIFY(named("Uninstall") && named("Uninstall")->isEnabled());
    QVERIFY(!shows("App is currently running"));
    press("Uninstall");
    QTRY_VERIFY(named("Move to Trash"));
    m_test->workspace->setRunning({ "org.example.Notes" });
    QTRY_VERIFY(shows("App is currently running"));
    QTRY_VERIFY(!named("Move to Trash"));
    QVERIFY(!named("Uninstall")->isEnabled());
    m_test->workspace->setRunning({});
    QTRY_VERIFY(!shows("App is currently running"));
    QVERIFY(named("Uninstall")->isEnabled());
}

void UninstallerScreenTest::escapeLeavesTheConfirmation()
{
    installThree();
    scanApps();
    pressApp("Notes");
    press("Uninstall");
    QTRY_VERIFY(named("Move to Trash"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Move to Trash"));
    press("Uninstall");
    press("Cancel");
    QTRY_VERIFY(!named("Move to Trash"));
    QVERIFY(fs::exists(home() / "Applications/Notes.app"));
}

void UninstallerScreenTest::saysSoWhenThereIsNothing()
{
    scanApps();
    QTRY_VERIFY(shows("No applications found"));
    installThree();
    press("Scan Again");
    QTRY_VERIFY(appRow("Notes"));
    press("Search apps");
    key(Qt::Key_X);
    QTRY_VERIFY(shows("No matching apps"));
}

void UninstallerScreenTest::showsTheLastOfManyApplications()
{
    for (int i = 0; i < 200; ++i)
        install("App " + std::to_string(i), "org.example.app" + std::to_string(i), std::size_t{ 10'000 });
    scanApps();
    tabTo("Search apps");
    key(Qt::Key_Down);
    key(Qt::Key_End);
    QTRY_VERIFY(window()->activeFocusItem()->inherits("QQuickItemDelegate"));
    QQuickItem* last = window()->activeFocusItem();
    QVERIFY(last->mapToScene(QPointF(0, last->height())).y() <= window()->height());
    QTRY_VERIFY(shows(utf8("Uninstall")) || named("Uninstall"));
}

void UninstallerScreenTest::comesBackAfresh()
{
    installThree();
    scanApps();
    press("Maintenance");
    QTRY_VERIFY(shows("Free Up RAM"));
    press("Uninstaller");
    QTRY_VERIFY(named("Scan Applications"));
    QVERIFY(!appRow("Notes"));
}

QTEST_MAIN(UninstallerScreenTest)
#include "UninstallerScreenTest.moc"
