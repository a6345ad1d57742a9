// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/DashboardViewModel.h"
#include "App/AppState.h"
#include "UI/Background.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <limits>

using namespace Korvane;

/// The dashboard on disks that a test makes up. Each row: total, free, used, nearly full.
class DashboardViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isEmptyUntilMeasured();
    void tellsWhatIsUsed_data();
    void tellsWhatIsUsed();
    void aFailedLookupShowsZeroTwice();
    void aSecondMeasurementReplacesTheFirst();
    void theLastMeasurementStands();
    void namesTheSizes();
    void measuresOffTheMainThread();
    void smartScanAsksForSystemJunk();
    void aCardOpensItsModuleAndAsksForNoScan();
};

void DashboardViewModelTest::isEmptyUntilMeasured()
{
    AppState state;
    DashboardViewModel dashboard({}, state, [] { return VolumeCapacity{ 100, 40 }; });
    QCOMPARE(dashboard.totalBytes(), 0);
    QCOMPARE(dashboard.freeBytes(), 0);
    QCOMPARE(dashboard.usedBytes(), 0);
    QCOMPARE(dashboard.usedFraction(), 0.0);
    QVERIFY(!dashboard.isNearlyFull());
}

void DashboardViewModelTest::tellsWhatIsUsed_data()
{
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("available");
    QTest::addColumn<qint64>("used");
    QTest::addColumn<bool>("nearlyFull");
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    QTest::newRow("half") << qint64{ 1000 } << qint64{ 500 } << qint64{ 500 } << false;
    QTest::newRow("exactly 90 percent") << qint64{ 1000 } << qint64{ 100 } << qint64{ 900 } << false;
    QTest::newRow("one byte more") << qint64{ 1000 } << qint64{ 99 } << qint64{ 901 } << true;
    QTest::newRow("rounds down as whole numbers do") << qint64{ 1009 } << qint64{ 101 } << qint64{ 908 } << false;
    QTest::newRow("one more than that") << qint64{ 1009 } << qint64{ 100 } << qint64{ 909 } << true;
    QTest::newRow("purgeable space") << qint64{ 1000 } << qint64{ 1200 } << qint64{ 0 } << false;
    QTest::newRow("full") << qint64{ 1000 } << qint64{ 0 } << qint64{ 1000 } << true;
    QTest::newRow("no disk") << qint64{ 0 } << qint64{ 0 } << qint64{ 0 } << false;
    QTest::newRow("largest number") << most << qint64{ 0 } << most << true;
}

void DashboardViewModelTest::tellsWhatIsUsed()
{
    QFETCH(const qint64, total);
    QFETCH(const qint64, available);
    AppState state;
    DashboardViewModel dashboard({}, state, [=] { return VolumeCapacity{ total, available }; });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QTEST(qint64{ dashboard.usedBytes() }, "used");
    QTEST(dashboard.isNearlyFull(), "nearlyFull");
    QFETCH(const qint64, used);
    QCOMPARE(dashboard.usedFraction(), total > 0 ? static_cast<double>(used) / static_cast<double>(total) : 0.0);
}

void DashboardViewModelTest::aFailedLookupShowsZeroTwice()
{
    AppState state;
    DashboardViewModel dashboard({}, state, [] { return std::optional<VolumeCapacity>(); });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QCOMPARE(dashboard.capacityText(), QStringLiteral("Zero KB free of Zero KB"));
    QCOMPARE(dashboard.usedFraction(), 0.0);
}

void DashboardViewModelTest::aSecondMeasurementReplacesTheFirst()
{
    AppState state;
    std::optional<VolumeCapacity> capacity = VolumeCapacity{ 1000, 500 };
    DashboardViewModel dashboard({}, state, [&] { return capacity; });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QCOMPARE(dashboard.freeBytes(), 500);
    capacity.reset();
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 2);
    QCOMPARE(dashboard.totalBytes(), 0);
}

void DashboardViewModelTest::theLastMeasurementStands()
{
    AppState state;
    QSemaphore mayEnd;
    std::atomic<int> begun = 0;
    DashboardViewModel dashboard({}, state, [&] {
        const bool isFirst = begun++ == 0;
        if (isFirst)
            mayEnd.acquire();
        return VolumeCapacity{ 1000, isFirst ? 100 : 900 };
    });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(begun.load(), 1);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QCOMPARE(dashboard.freeBytes(), 900);
    mayEnd.release();
    finishBackgroundWork();
    QCoreApplication::processEvents();
    QCOMPARE(dashboard.freeBytes(), 900);
    QCOMPARE(measured.count(), 1);
}

void DashboardViewModelTest::namesTheSizes()
{
    AppState state;
    DashboardViewModel dashboard({}, state, [] { return VolumeCapacity{ 500'000'000'000, 120'500'000'000 }; });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QCOMPARE(dashboard.capacityText(), QStringLiteral("120.5 GB free of 500 GB"));
}

void DashboardViewModelTest::measuresOffTheMainThread()
{
    AppState state;
    QThread* measuring = nullptr;
    DashboardViewModel dashboard({}, state, [&] {
        measuring = QThread::currentThread();
        return std::optional<VolumeCapacity>();
    });
    QSignalSpy measured(&dashboard, &DashboardViewModel::measured);
    dashboard.measure();
    QTRY_COMPARE(measured.count(), 1);
    QVERIFY(measuring != nullptr && measuring != QThread::currentThread());
}

void DashboardViewModelTest::smartScanAsksForSystemJunk()
{
    AppState state;
    DashboardViewModel dashboard({}, state, [] { return std::optional<VolumeCapacity>(); });
    dashboard.smartScan();
    QVERIFY(state.selectedModule() == CleanerModule::systemJunk);
    QVERIFY(state.pendingScan() == CleanerModule::systemJunk);
}

void DashboardViewModelTest::aCardOpensItsModuleAndAsksForNoScan()
{
    AppState state;
    ModuleViewModel duplicates(CleanerModule::duplicates);
    DashboardViewModel dashboard({ &duplicates }, state, [] { return std::optional<VolumeCapacity>(); });
    dashboard.open(&duplicates);
    QVERIFY(state.selectedModule() == CleanerModule::duplicates);
    QVERIFY(!state.pendingScan());
}

QTEST_GUILESS_MAIN(DashboardViewModelTest)
#include "DashboardViewModelTest.moc"
