// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestBundles.h"
#include "Tests/UI/Tours/TourFixture.h"

#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// From the list of applications to the Trash.
class UninstallerTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void uninstallsAnApplication();
    void findsNoApplication();
    void cancelsAScan();

private:
    void install(const std::string& name, const std::string& identifier, std::size_t bytes) const;
};

void UninstallerTourTest::install(const std::string& name, const std::string& identifier, std::size_t bytes) const
{
    makeBundle(home() / "Applications" / (name + ".app"), identifier, bytes);
    writeFile(home() / "Library/Caches" / identifier / "data", std::size_t{ 20'000 });
}

void UninstallerTourTest::uninstallsAnApplication()
{
    install("Voicemail Tool", "org.example.Voice", 900'000);
    install("Notes", "org.example.Notes", 500'000);
    install("Mail", "org.example.Mail", 100'000);
    open("Uninstaller");
    arriveAt("Scan Applications");
    hit(Qt::Key_Return);
    arriveAt("Search apps");
    type("mail");
    goTo("Voicemail Tool", Qt::Key_Down, 1);
    goTo("Mail", Qt::Key_Down, 1);
    QVERIFY(!shows(utf8("Notes")));
    hit(Qt::Key_Return);
    arriveAt("Uninstall");
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Cancel");
    hit(Qt::Key_Escape);
    beAskedNoMore("Move to Trash");
    arriveAt("Uninstall");
    hit(Qt::Key_Space);
    beAsked("Move to Trash", "Cancel");
    goTo("Move to Trash", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    // Looked for again.
    arriveAt("Search apps");
    QTRY_VERIFY(shows(utf8("Select an application")));
    QVERIFY(wasTrashed(home() / "Applications/Mail.app") && wasTrashed(home() / "Library/Caches/org.example.Mail"));
    for (const char* left : { "Applications/Voicemail Tool.app", "Applications/Notes.app",
             "Library/Caches/org.example.Voice", "Library/Caches/org.example.Notes" })
        QVERIFY2(fs::exists(home() / left), left);

    hit(Qt::Key_Escape);
    goTo("Voicemail Tool", Qt::Key_Down, 1);
    goTo("Notes", Qt::Key_End, 1);
    goTo("Search apps", Qt::Key_Up, 2);
    goTo("Scan Again", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    arriveAt("Search apps");
}

void UninstallerTourTest::findsNoApplication()
{
    open("Uninstaller");
    hit(Qt::Key_Return);
    arriveAt("Search apps");
    QTRY_VERIFY(shows(utf8("No applications found")));
    goTo("Scan Again", Qt::Key_Tab, 1);
    hit(Qt::Key_Space);
    arriveAt("Search apps");
}

void UninstallerTourTest::cancelsAScan()
{
    install("Notes", "org.example.Notes", 500'000);
    makeScansHoldable();
    holdScans();
    open("Uninstaller");
    hit(Qt::Key_Return);
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space }) {
        arriveAt("Cancel");
        hit(key);
        arriveAt("Scan Applications");
        hit(Qt::Key_Return);
    }
    letScansGo();
    arriveAt("Search apps");
    goTo("Notes", Qt::Key_Down, 1);
}

QTEST_MAIN(UninstallerTourTest)
#include "UninstallerTourTest.moc"
