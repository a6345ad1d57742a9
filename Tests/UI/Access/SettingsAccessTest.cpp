// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"
#include "UI/PreferenceKeys.h"

#include <QTest>

using namespace Korvane;

/// What a screen reader and the keyboard find in the settings window.
class SettingsAccessTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void thePreferences_data();
    void thePreferences();
    void about();
    void nothingIsToldByColourAlone();
    void switchesAndTabsArePressedWithoutPointerAndKeys();

private:
    QQuickWindow* openSettings() const;
};

QQuickWindow* SettingsAccessTest::openSettings() const
{
    key(Qt::Key_Comma, Qt::ControlModifier);
    for (QWindow* candidate : QGuiApplication::topLevelWindows()) {
        if (candidate->title() == QStringLiteral("Settings") && QTest::qWaitForWindowActive(candidate))
            return qobject_cast<QQuickWindow*>(candidate);
    }
    return nullptr;
}

void SettingsAccessTest::thePreferences_data()
{
    QTest::addColumn<bool>("granted");
    QTest::newRow("access granted") << true;
    QTest::newRow("access not granted") << false;
}

void SettingsAccessTest::thePreferences()
{
    QFETCH(bool, granted);
    if (!granted)
        writeFile(home() / "Library/Safari", "");
    m_test->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, granted);
    QQuickWindow* settings = openSettings();
    QVERIFY(settings != nullptr);
    QCOMPARE(control(settings, utf8("Grant…")) == nullptr, granted);
    checkAccess(settings, "the preferences");
}

void SettingsAccessTest::about()
{
    QQuickWindow* settings = openSettings();
    QVERIFY(settings != nullptr);
    const auto isChosen = [&] {
        // A window manager that still places the window may swallow a click.
        click(control(settings, utf8("About")));
        return visibleTexts(settings).contains(utf8("Keep your Mac and iOS devices clean and fast."));
    };
    QTRY_VERIFY(isChosen());
    checkAccess(settings, "about");
}

void SettingsAccessTest::switchesAndTabsArePressedWithoutPointerAndKeys()
{
    QQuickWindow* settings = openSettings();
    QVERIFY(settings != nullptr);
    const auto act = [&](const char* name, const QString& action) {
        QAccessible::queryAccessibleInterface(control(settings, utf8(name)))->actionInterface()->doAction(action);
    };
    const auto key = PreferenceKeys::moveToTrashInsteadOfDelete;
    act("Move files to Trash instead of deleting", QAccessibleActionInterface::pressAction());
    QVERIFY(!m_test->host.defaults->boolForKey(key, true));
    act("Move files to Trash instead of deleting", QAccessibleActionInterface::toggleAction());
    QVERIFY(m_test->host.defaults->boolForKey(key, false));
    act("About", QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(visibleTexts(settings).contains(utf8("Keep your Mac and iOS devices clean and fast.")));
}

void SettingsAccessTest::nothingIsToldByColourAlone()
{
    QQuickWindow* settings = openSettings();
    QVERIFY(settings != nullptr);
    QQuickItem* toggle = control(settings, utf8("Move files to Trash instead of deleting"));
    const QStringList on = shapesOf(toggle);
    click(toggle);
    QTRY_VERIFY(shapesOf(toggle) != on);
    const QStringList granted = shapesOf(settings->contentItem());
    writeFile(home() / "Library/Safari", "");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QTRY_VERIFY(control(settings, utf8("Grant…")));
    const QStringList missing = shapesOf(settings->contentItem());
    QVERIFY(granted.contains(QStringLiteral("checkmark.circle.fill")));
    QVERIFY(missing.contains(QStringLiteral("exclamationmark.triangle.fill")));
    const QStringList tab = shapesOf(control(settings, utf8("About")));
    click(control(settings, utf8("About")));
    QTRY_VERIFY(shapesOf(control(settings, utf8("About"))) != tab);
}

QTEST_MAIN(SettingsAccessTest)
#include "SettingsAccessTest.moc"
