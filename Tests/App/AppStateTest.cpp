// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/AppState.h"

#include <QSignalSpy>
#include <QTest>

using namespace Korvane;

class AppStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beginsOnTheDashboardWithNothingAskedFor();
    void aRequestSelectsTheModuleBeforeItIsAnnounced();
    void aRequestSurvivesTheQuestionOfAnotherModule();
    void aRequestIsTakenUpOnce();
    void aNewRequestReplacesTheOldOne();
    void selectingKeepsAPendingRequest();
    void nothingIsAnnouncedThatDidNotChange();
};

void AppStateTest::beginsOnTheDashboardWithNothingAskedFor()
{
    AppState state;
    QVERIFY(!state.selectedModule());
    QVERIFY(!state.pendingScan());
    QVERIFY(!state.consumeScanRequest(CleanerModule::systemJunk));
}

void AppStateTest::aRequestSelectsTheModuleBeforeItIsAnnounced()
{
    AppState state;
    std::optional<CleanerModule> selectedWhenAnnounced;
    connect(&state, &Navigation::pendingScanChanged, this, [&] { selectedWhenAnnounced = state.selectedModule(); });
    state.requestScan(CleanerModule::systemJunk);
    QVERIFY(state.selectedModule() == CleanerModule::systemJunk);
    QVERIFY(state.pendingScan() == CleanerModule::systemJunk);
    QVERIFY(selectedWhenAnnounced == CleanerModule::systemJunk);
}

void AppStateTest::aRequestSurvivesTheQuestionOfAnotherModule()
{
    AppState state;
    state.requestScan(CleanerModule::systemJunk);
    QVERIFY(!state.consumeScanRequest(CleanerModule::largeFiles));
    QVERIFY(state.pendingScan() == CleanerModule::systemJunk);
}

void AppStateTest::aRequestIsTakenUpOnce()
{
    AppState state;
    state.requestScan(CleanerModule::duplicates);
    QVERIFY(state.consumeScanRequest(CleanerModule::duplicates));
    QVERIFY(!state.pendingScan());
    QVERIFY(!state.consumeScanRequest(CleanerModule::duplicates));
    QVERIFY(state.selectedModule() == CleanerModule::duplicates);
}

void AppStateTest::aNewRequestReplacesTheOldOne()
{
    AppState state;
    state.requestScan(CleanerModule::systemJunk);
    state.requestScan(CleanerModule::largeFiles);
    QVERIFY(!state.consumeScanRequest(CleanerModule::systemJunk));
    QVERIFY(state.consumeScanRequest(CleanerModule::largeFiles));
}

void AppStateTest::selectingKeepsAPendingRequest()
{
    AppState state;
    state.requestScan(CleanerModule::systemJunk);
    state.setSelectedModule(std::nullopt);
    QVERIFY(state.pendingScan() == CleanerModule::systemJunk);
}

void AppStateTest::nothingIsAnnouncedThatDidNotChange()
{
    AppState state;
    QSignalSpy selected(&state, &Navigation::selectedModuleChanged);
    QSignalSpy pending(&state, &Navigation::pendingScanChanged);
    state.setSelectedModule(std::nullopt);
    state.requestScan(CleanerModule::systemJunk);
    state.requestScan(CleanerModule::systemJunk);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(pending.count(), 1);
    QVERIFY(!state.consumeScanRequest(CleanerModule::iosDevice));
    QCOMPARE(pending.count(), 1);
}

QTEST_APPLESS_MAIN(AppStateTest)
#include "AppStateTest.moc"
