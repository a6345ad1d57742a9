// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/MenuBarViewModel.h"
#include "Tests/UI/Maintenance/MaintenanceHome.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "UI/PreferenceKeys.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <limits>

using namespace Korvane;

namespace {

double secondsAgo(double seconds)
{
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count() - seconds;
}

} // namespace

class MenuBarViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsNothingWithoutACleanup();
    void tellsWhatTheLastCleanupFreedAndWhen();
    void tellsOfACleanupThatIsJustRecorded();
    void tellsOfACleanupThatAnotherProgramRecorded();
    void tellsNothingOfAMomentThatNeverWas_data();
    void tellsNothingOfAMomentThatNeverWas();
    void survivesAnyMoment_data();
    void survivesAnyMoment();
    void countsTheMinutesOnlyWhileItIsShown();
    void opensTheWindowBeforeItAsksForTheScan();
    void freesMemoryOnceForManyPresses();
    void dropsWhatComesOfIt();
    void needsNoProgramToBeThere();
    void itsEndEndsWhatWaits();

private:
    Host& host() const { return m_home->test.host; }
    void record(std::int64_t bytes, double date) const
    {
        QVERIFY(host().defaults->setInteger(PreferenceKeys::lastCleanedBytes, bytes));
        QVERIFY(host().defaults->setDouble(PreferenceKeys::lastCleanedDate, date));
    }

    std::unique_ptr<MaintenanceHome> m_home;
    PlainNavigation m_navigation;
    std::unique_ptr<MenuBarViewModel> m_model;
};

void MenuBarViewModelTest::init()
{
    m_home = std::make_unique<MaintenanceHome>();
    writeFile(host().environment.scriptInterpreter, "");
    m_model = std::make_unique<MenuBarViewModel>(host(), m_navigation);
}

void MenuBarViewModelTest::cleanup()
{
    m_model.reset();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void MenuBarViewModelTest::tellsNothingWithoutACleanup() { QVERIFY(!m_model->hasLastCleanup()); }

void MenuBarViewModelTest::tellsWhatTheLastCleanupFreedAndWhen()
{
    record(2'500'000'000, secondsAgo(2 * 3600 + 5));
    QVERIFY(m_model->hasLastCleanup());
    QCOMPARE(m_model->lastCleanup(), QStringLiteral("Last cleanup: 2.5 GB"));
    QCOMPARE(m_model->lastCleanupMoment(), QStringLiteral("2 hours ago"));
    record(0, secondsAgo(90));
    QVERIFY(m_model->hasLastCleanup());
    QCOMPARE(m_model->lastCleanup(), QStringLiteral("Last cleanup: Zero KB"));
    QCOMPARE(m_model->lastCleanupMoment(), QStringLiteral("1 minute ago"));
}

void MenuBarViewModelTest::tellsOfACleanupThatIsJustRecorded()
{
    const QSignalSpy changed(m_model.get(), &MenuBarViewModel::lastCleanupChanged);
    record(1, secondsAgo(0));
    QCOMPARE(changed.count(), 2);
    QVERIFY(host().defaults->setBool(PreferenceKeys::confirmBeforeCleaning, false));
    QCOMPARE(changed.count(), 2);
}

void MenuBarViewModelTest::tellsOfACleanupThatAnotherProgramRecorded()
{
    // A store of its own knows of this one no more than another process does.
    const auto other = makeUserDefaults(host().environment);
    QVERIFY(other->setInteger(PreferenceKeys::lastCleanedBytes, 1'000));
    QVERIFY(other->setDouble(PreferenceKeys::lastCleanedDate, secondsAgo(3)));
    QVERIFY(!m_model->hasLastCleanup());
    QTRY_VERIFY(m_model->hasLastCleanup());
    QTRY_COMPARE(m_model->lastCleanup(), QStringLiteral("Last cleanup: 1 KB"));
}

void MenuBarViewModelTest::tellsNothingOfAMomentThatNeverWas_data()
{
    QTest::addColumn<double>("date");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("before 1970") << -1.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("endless") << std::numeric_limits<double>::infinity();
    QTest::newRow("without beginning") << -std::numeric_limits<double>::infinity();
}

void MenuBarViewModelTest::tellsNothingOfAMomentThatNeverWas()
{
    QFETCH(const double, date);
    record(5'000'000, date);
    QVERIFY(!m_model->hasLastCleanup());
}

void MenuBarViewModelTest::survivesAnyMoment_data()
{
    QTest::addColumn<double>("date");
    QTest::addColumn<QString>("moment");
    QTest::newRow("the largest number") << std::numeric_limits<double>::max() << QStringLiteral("in 1000 years");
    QTest::newRow("as many as a counter holds") << 9.3e18 << QStringLiteral("in 1000 years");
    QTest::newRow("the smallest number") << std::numeric_limits<double>::denorm_min() << QString();
    QTest::newRow("a clock that was set back") << secondsAgo(-3700) << QStringLiteral("in 1 hour");
}

void MenuBarViewModelTest::survivesAnyMoment()
{
    QFETCH(const double, date);
    QFETCH(const QString, moment);
    record(std::numeric_limits<std::int64_t>::max(), date);
    QVERIFY(m_model->hasLastCleanup());
    QCOMPARE(m_model->lastCleanup(), QStringLiteral("Last cleanup: 9.22 EB"));
    if (moment.isEmpty())
        QVERIFY(m_model->lastCleanupMoment().endsWith(QStringLiteral(" years ago")));
    else
        QCOMPARE(m_model->lastCleanupMoment(), moment);
}

void MenuBarViewModelTest::countsTheMinutesOnlyWhileItIsShown()
{
    auto* minutes = m_model->findChild<QTimer*>();
    QVERIFY(minutes);
    QVERIFY(!minutes->isActive());
    QSignalSpy changed(m_model.get(), &MenuBarViewModel::lastCleanupChanged);
    m_model->setShown(true);
    QCOMPARE(changed.count(), 1);
    QVERIFY(minutes->isActive());
    QCOMPARE(minutes->intervalAsDuration(), std::chrono::milliseconds(60'000));
    m_model->setShown(true);
    QCOMPARE(changed.count(), 1);
    minutes->setInterval(1);
    QTRY_VERIFY(changed.count() > 1);
    m_model->setShown(false);
    QVERIFY(!minutes->isActive());
}

void MenuBarViewModelTest::opensTheWindowBeforeItAsksForTheScan()
{
    std::optional<CleanerModule> pendingWhenOpened = CleanerModule::maintenance;
    QSignalSpy opened(m_model.get(), &MenuBarViewModel::openRequested);
    connect(
        m_model.get(), &MenuBarViewModel::openRequested, this, [&] { pendingWhenOpened = m_navigation.pendingScan(); });
    m_model->scanSystemJunk();
    QCOMPARE(opened.count(), 1);
    QVERIFY(!pendingWhenOpened);
    QVERIFY(m_navigation.pendingScan() == CleanerModule::systemJunk);
    QVERIFY(m_navigation.selectedModule() == CleanerModule::systemJunk);
}

void MenuBarViewModelTest::freesMemoryOnceForManyPresses()
{
    QSignalSpy changed(m_model.get(), &MenuBarViewModel::freeingRamChanged);
    for (int press = 0; press < 5; ++press)
        m_model->freeUpRam();
    QVERIFY(m_model->isFreeingRam());
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    QCOMPARE(m_home->processes->started()[0].program, host().environment.scriptInterpreter);
    const std::vector<std::string> arguments{ "-e",
        "do shell script \"/usr/sbin/purge\" with administrator privileges" };
    QCOMPARE(m_home->processes->started()[0].arguments, arguments);
    m_home->processes->end("purge", TestProcessRunner::exited(0));
    QTRY_VERIFY(!m_model->isFreeingRam());
    QCOMPARE(changed.count(), 2);
    m_model->freeUpRam();
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 2 });
    m_home->processes->end("purge", TestProcessRunner::exited(0));
    QTRY_VERIFY(!m_model->isFreeingRam());
}

void MenuBarViewModelTest::dropsWhatComesOfIt()
{
    m_home->processes->end("purge", TestProcessRunner::exited(1, "User canceled."));
    m_model->freeUpRam();
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    QTRY_VERIFY(!m_model->isFreeingRam());
}

void MenuBarViewModelTest::needsNoProgramToBeThere()
{
    std::filesystem::remove(host().environment.scriptInterpreter);
    m_model->freeUpRam();
    QTRY_VERIFY(!m_model->isFreeingRam());
}

void MenuBarViewModelTest::itsEndEndsWhatWaits()
{
    m_model->freeUpRam();
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    m_model.reset();
    QCOMPARE(m_home->processes->cancelled(), 1);
}

QTEST_GUILESS_MAIN(MenuBarViewModelTest)
#include "MenuBarViewModelTest.moc"
