// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Tours/TourFixture.h"
#include "UI/PreferenceKeys.h"

#include <QGuiApplication>
#include <QTest>

#include <string_view>

using namespace Korvane;

/// The settings window, and back to the main one.
class SettingsTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void changesAPreferenceThatTheNextCleaningFollows();
    void looksAtTheTabs();
    void opensFromTheApplicationMenu();
    void grantsAccess();

private:
    void openByShortcut() const;
    void closeBy(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    bool isSet(std::string_view key) const { return m_test->host.defaults->boolForKey(key, true); }
};

void SettingsTourTest::openByShortcut() const
{
    hit(Qt::Key_Comma, Qt::ControlModifier);
    if (!QTest::currentTestFailed())
        QTRY_VERIFY(front() && front()->title() == utf8("Settings"));
    arriveAt("General");
}

void SettingsTourTest::closeBy(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    if (QTest::currentTestFailed())
        return;
    QTest::keyClick(front(), key, modifiers);
    // Where there is no window manager nobody else gives the keyboard back.
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        QTRY_VERIFY(front() == nullptr || front() == window());
        window()->requestActivate();
    }
    QTRY_VERIFY(front() == window());
}

void SettingsTourTest::changesAPreferenceThatTheNextCleaningFollows()
{
    makeCaches();
    open("System Junk");
    hit(Qt::Key_Return);
    arriveAt("org.example.maps");
    goTo("Clean", Qt::Key_Tab, 1);
    openByShortcut();
    goTo("Ask for confirmation before cleaning", Qt::Key_Tab, 3);
    hit(Qt::Key_Space);
    QTRY_VERIFY(!isSet(PreferenceKeys::confirmBeforeCleaning));
    goTo("Move files to Trash instead of deleting", Qt::Key_Backtab, 1);
    hit(Qt::Key_Space);
    QTRY_VERIFY(!isSet(PreferenceKeys::moveToTrashInsteadOfDelete));
    hit(Qt::Key_Space);
    QTRY_VERIFY(isSet(PreferenceKeys::moveToTrashInsteadOfDelete));
    closeBy(Qt::Key_Escape);
    arriveAt("Clean");
    QTest::keyClick(window(), Qt::Key_Return);
    arriveAt("Scan Again");
    QVERIFY(wasTrashed(home() / "Library/Caches/org.example.maps"));
}

void SettingsTourTest::looksAtTheTabs()
{
    open("Dashboard");
    openByShortcut();
    hit(Qt::Key_Right);
    arriveAt("About");
    QTRY_VERIFY(visibleTexts(front()).contains(utf8("Keep your Mac and iOS devices clean and fast.")));
    hit(Qt::Key_Left);
    arriveAt("General");
    QTRY_VERIFY(control(front(), utf8("Ask for confirmation before cleaning")));
    closeBy(Qt::Key_W, Qt::ControlModifier);
    arriveAt("Smart Scan");
    openByShortcut();
    closeBy(Qt::Key_Escape);
    arriveAt("Smart Scan");
}

void SettingsTourTest::opensFromTheApplicationMenu()
{
    open("Dashboard");
    hit(Qt::Key_F6);
    goTo("Application menu", Qt::Key_Backtab);
    hit(Qt::Key_Return);
    arriveAt("Settings…");
    hit(Qt::Key_Return);
    QTRY_VERIFY(front() && front()->title() == utf8("Settings"));
    arriveAt("General");
    closeBy(Qt::Key_Escape);
}

void SettingsTourTest::grantsAccess()
{
    // A file where a folder should be: the probe cannot list it.
    writeFile(home() / "Library/Safari", "");
    startApplication();
    open("Dashboard");
    openByShortcut();
    goTo("Grant…");
    hit(Qt::Key_Return);
    QTRY_COMPARE(m_test->workspace->openedUrls().size(), std::size_t{ 1 });
    closeBy(Qt::Key_Escape);
    goTo("Open Settings", Qt::Key_Backtab, 1);
    hit(Qt::Key_Space);
    QTRY_COMPARE(m_test->workspace->openedUrls().size(), std::size_t{ 2 });
}

QTEST_MAIN(SettingsTourTest)
#include "SettingsTourTest.moc"
