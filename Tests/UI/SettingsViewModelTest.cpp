// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/SettingsViewModel.h"
#include "Tests/Support/TestHost.h"
#include "UI/PreferenceKeys.h"

#include <QSignalSpy>
#include <QTest>

using namespace Korvane;

class SettingsViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bothAreOnAtFirst();
    void whatIsSwitchedIsStored();
    void whatIsStoredElsewhereIsAnnounced();
    void twoViewsShowTheSame();
    void nothingIsWrittenThatDidNotChange();
    void garbageInTheStoreCountsAsAbsent();
    void tellsTheVersion();
};

namespace {

/// A settings window on real preferences.
struct Settings {
    explicit Settings(const TestHost& test)
        : access(test.host)
        , viewModel(test.host.defaults, access)
    {
    }

    FullDiskAccessViewModel access;
    SettingsViewModel viewModel;
};

} // namespace

void SettingsViewModelTest::bothAreOnAtFirst()
{
    const TemporaryFolder folder;
    const Settings settings(makeTestHost(folder));
    QVERIFY(settings.viewModel.movesToTrash());
    QVERIFY(settings.viewModel.asksBeforeCleaning());
}

void SettingsViewModelTest::whatIsSwitchedIsStored()
{
    const TemporaryFolder folder;
    {
        Settings settings(makeTestHost(folder));
        settings.viewModel.setMovesToTrash(false);
        settings.viewModel.setAsksBeforeCleaning(false);
    }
    const TestHost again = makeTestHost(folder);
    QVERIFY(!again.host.defaults->boolForKey(PreferenceKeys::moveToTrashInsteadOfDelete, true));
    QVERIFY(!again.host.defaults->boolForKey(PreferenceKeys::confirmBeforeCleaning, true));
    QVERIFY(!Settings(again).viewModel.movesToTrash());
}

void SettingsViewModelTest::whatIsStoredElsewhereIsAnnounced()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    Settings settings(test);
    QSignalSpy trash(&settings.viewModel, &SettingsViewModel::movesToTrashChanged);
    QSignalSpy asks(&settings.viewModel, &SettingsViewModel::asksBeforeCleaningChanged);
    QVERIFY(test.host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false));
    QCOMPARE(trash.count(), 1);
    QCOMPARE(asks.count(), 0);
    QVERIFY(!settings.viewModel.movesToTrash());
    QVERIFY(test.host.defaults->setBool(PreferenceKeys::confirmBeforeCleaning, false));
    QCOMPARE(asks.count(), 1);
    QVERIFY(test.host.defaults->setInteger(PreferenceKeys::lastCleanedBytes, 1));
    QCOMPARE(trash.count() + asks.count(), 2);
}

void SettingsViewModelTest::twoViewsShowTheSame()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    Settings one(test);
    Settings other(test);
    QSignalSpy changed(&other.viewModel, &SettingsViewModel::movesToTrashChanged);
    one.viewModel.setMovesToTrash(false);
    QVERIFY(!other.viewModel.movesToTrash());
    QCOMPARE(changed.count(), 1);
}

void SettingsViewModelTest::nothingIsWrittenThatDidNotChange()
{
    const TemporaryFolder folder;
    Settings settings(makeTestHost(folder));
    QSignalSpy changed(&settings.viewModel, &SettingsViewModel::movesToTrashChanged);
    settings.viewModel.setMovesToTrash(true);
    QCOMPARE(changed.count(), 0);
}

void SettingsViewModelTest::garbageInTheStoreCountsAsAbsent()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    QVERIFY(test.host.defaults->setInteger(PreferenceKeys::moveToTrashInsteadOfDelete, 7));
    QVERIFY(Settings(test).viewModel.movesToTrash());
}

void SettingsViewModelTest::tellsTheVersion()
{
    const TemporaryFolder folder;
    const Settings settings(makeTestHost(folder));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    QCOMPARE(settings.viewModel.versionText(), QStringLiteral("Version 1.2.3"));
    QCoreApplication::setApplicationVersion(QString());
    QCOMPARE(settings.viewModel.versionText(), QStringLiteral("Version —"));
}

QTEST_MAIN(SettingsViewModelTest)
#include "SettingsViewModelTest.moc"
