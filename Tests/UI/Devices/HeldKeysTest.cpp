// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestBundles.h"
#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Korvane;
using Keys = QList<Qt::Key>;

/// A key that is held down is one press of a row, a card or a button, and many of a letter in a text.
class HeldKeysTest : public DeviceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void aButtonIsPressedOnce();
    void aRowOfTheSidebarIsPressedOnce();
    void aCardIsPressedOnce();
    void aFileIsTickedOnce();
    void aFolderIsOpenedOnce();
    void aFoundItemIsTickedOnce();
    void aSwitchIsTurnedOnce();
    void theQuestionAboutABackupStays();
    void theQuestionAboutABackgroundItemStays();
    void theSearchLeadsNoFurtherThanToTheList();
    void aTextRepeats();

private:
    /// How often the control emits the signal while the key is held.
    int presses(QQuickItem* item, const char* signal, Qt::Key key) const
    {
        QSignalSpy spy(item, signal);
        item->forceActiveFocus(Qt::TabFocusReason);
        hold(key, item->window());
        return static_cast<int>(spy.count());
    }
};

void HeldKeysTest::aButtonIsPressedOnce()
{
    phone();
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }) {
        QQuickItem* button = refreshButton("Photos & Videos on Anna's iPhone");
        QCOMPARE(presses(button, SIGNAL(clicked()), key), 1);
    }
}

void HeldKeysTest::aRowOfTheSidebarIsPressedOnce()
{
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space })
        QCOMPARE(presses(named("Maintenance"), SIGNAL(clicked()), key), 1);
}

void HeldKeysTest::aCardIsPressedOnce()
{
    QQuickItem* card = controls(window(), utf8("System Junk")).last();
    QVERIFY(QByteArray(card->metaObject()->className()).startsWith("ModuleCard"));
    // What it opens would take the keyboard.
    disconnect(card, SIGNAL(clicked()), nullptr, nullptr);
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space })
        QCOMPARE(presses(card, SIGNAL(clicked()), key), 1);
}

void HeldKeysTest::aFileIsTickedOnce()
{
    phone();
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    pressItem(rowOf("100APPLE"));
    QTRY_VERIFY(rowOf("IMG_2.MOV"));
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space })
        QCOMPARE(presses(rowOf("IMG_2.MOV"), SIGNAL(tickRequested()), key), 1);
    QVERIFY(isTicked("IMG_2.MOV") && shows("1 files selected"));
}

void HeldKeysTest::aFolderIsOpenedOnce()
{
    phone();
    open();
    QTRY_VERIFY(rowOf("100APPLE"));
    QCOMPARE(presses(rowOf("100APPLE"), SIGNAL(openRequested(bool)), Qt::Key_Return), 1);
    QTRY_VERIFY(rowOf("IMG_1.HEIC"));
    QCOMPARE(presses(rowOf("100APPLE"), SIGNAL(tickRequested()), Qt::Key_Space), 1);
    QVERIFY(shows("3 files selected"));
}

void HeldKeysTest::aFoundItemIsTickedOnce()
{
    makeCaches();
    scan();
    QTRY_VERIFY(row("org.example.maps"));
    const Tick before = tick("org.example.maps");
    QCOMPARE(presses(row("org.example.maps"), SIGNAL(toggled()), Qt::Key_Space), 1);
    QVERIFY(tick("org.example.maps") != before);
}

void HeldKeysTest::aSwitchIsTurnedOnce()
{
    key(Qt::Key_Comma, Qt::ControlModifier);
    QQuickWindow* settings = nullptr;
    for (QWindow* other : QGuiApplication::topLevelWindows()) {
        if (other != window() && other->isVisible())
            settings = qobject_cast<QQuickWindow*>(other);
    }
    QVERIFY(settings != nullptr && QTest::qWaitForWindowActive(settings));
    // The window manager may give the keyboard away once more.
    QTRY_VERIFY(settings->activeFocusItem() != nullptr);
    for (int steps = 0; steps < 10 && !settings->activeFocusItem()->inherits("QQuickSwitch"); ++steps) {
        QTest::keyClick(settings, Qt::Key_Tab);
        QTRY_VERIFY(settings->activeFocusItem() != nullptr);
    }
    QQuickItem* found = settings->activeFocusItem();
    QVERIFY(found->inherits("QQuickSwitch"));
    const bool before = found->property("checked").toBool();
    QCOMPARE(presses(found, SIGNAL(toggled()), Qt::Key_Space), 1);
    QCOMPARE(found->property("checked").toBool(), !before);
}

void HeldKeysTest::theQuestionAboutABackupStays()
{
    addBackup(home(), "one", "Anna's iPhone", 9'000'000);
    open();
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Delete }) {
        QTRY_VERIFY(rowOf("Anna's iPhone"));
        QCOMPARE(presses(rowOf("Anna's iPhone"), SIGNAL(removalRequested()), key), 1);
        QTRY_COMPARE(focused(), utf8("Cancel"));
        press("Cancel");
        QTRY_VERIFY(!named("Move to Trash"));
    }
}

void HeldKeysTest::theQuestionAboutABackgroundItemStays()
{
    writeFile(home() / "Library/LaunchAgents/org.example.one.plist",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>"
        "org.example.one</string><key>Program</key><string>/opt/example/run</string></dict></plist>\n");
    press("Maintenance");
    for (const Qt::Key key : Keys{ Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Delete }) {
        QTRY_VERIFY(rowOf("org.example.one"));
        QCOMPARE(presses(rowOf("org.example.one"), SIGNAL(removalRequested()), key), 1);
        QTRY_COMPARE(focused(), utf8("Cancel"));
        press("Cancel");
        QTRY_VERIFY(!named("Cancel"));
    }
}

void HeldKeysTest::theSearchLeadsNoFurtherThanToTheList()
{
    makeBundle(home() / "Applications/Notes.app", "org.example.Notes", 500'000);
    press("Uninstaller");
    press("Scan Applications");
    QTRY_VERIFY(named("Search apps"));
    named("Search apps")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    const QQuickItem* reached = window()->activeFocusItem();
    QVERIFY(reached != named("Search apps"));
    named("Search apps")->forceActiveFocus(Qt::TabFocusReason);
    hold(Qt::Key_Return);
    QCOMPARE(window()->activeFocusItem(), reached);
}

void HeldKeysTest::aTextRepeats()
{
    makeBundle(home() / "Applications/Notes.app", "org.example.Notes", 500'000);
    press("Uninstaller");
    press("Scan Applications");
    QTRY_VERIFY(named("Search apps"));
    named("Search apps")->forceActiveFocus(Qt::TabFocusReason);
    hold(Qt::Key_A);
    hold(Qt::Key_Space);
    QCOMPARE(named("Search apps")->property("text").toString(), QStringLiteral("AAAAA     "));
}

QTEST_MAIN(HeldKeysTest)
#include "HeldKeysTest.moc"
