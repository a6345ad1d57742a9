// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/MaintenanceViewModel.h"
#include "Core/Maintenance/MaintenanceRunner.h"
#include "Tests/UI/Maintenance/MaintenanceHome.h"
#include "Tests/UI/Scan/HeldScan.h"

#include <QSignalSpy>
#include <QtTest>

#include <type_traits>

using namespace Korvane;
static_assert(std::is_same_v<MaintenanceViewModel::TaskState, TaskState>);

/// How the screen's tasks stand, with programs that the test lets end.
class MaintenanceViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void beginsWithoutAnything();
    void runsATaskToItsEnd();
    void twoTasksEndInEitherOrder_data();
    void twoTasksEndInEitherOrder();
    void aFailureIsToldUntilTheTaskSucceeds();
    void aFailureMaySayNothing();
    void everyPressOfTheSameTaskRunsIt();
    void tellsWhyATaskCannotBeStarted();
    void runsWhatTheScreenNamesAndNothingElse();
    void manyTasksHoldUpNothingElse();
    void aTaskOutlivesItsScreen();
    void theEndOfTheThreadsEndsWhatRuns();
    void saysWhatIsMissing();

private:
    Host& host() const { return m_home->test.host; }
    /// How a task stands; nothing when it has not been run.
    std::optional<TaskState> state(MaintenanceTask task) const;
    /// Waits until so many programs have been started.
    void waitForStarts(std::size_t count) const { QTRY_COMPARE(m_home->processes->started().size(), count); }

    std::unique_ptr<MaintenanceHome> m_home;
    std::unique_ptr<MaintenanceViewModel> m_model;
};

void MaintenanceViewModelTest::init()
{
    m_home = std::make_unique<MaintenanceHome>();
    writeFile(host().environment.scriptInterpreter, "");
    m_model = std::make_unique<MaintenanceViewModel>(host(), m_home->work);
}

void MaintenanceViewModelTest::cleanup()
{
    m_model.reset();
    m_home->work.reset();
    drain();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

std::optional<TaskState> MaintenanceViewModelTest::state(MaintenanceTask task) const
{
    const auto found = m_model->taskStates().find(task);
    return found == m_model->taskStates().end() ? std::nullopt : std::optional(found->second);
}

void MaintenanceViewModelTest::beginsWithoutAnything()
{
    QVERIFY(m_model->taskStates().empty() && m_model->agents().empty());
    QVERIFY(!m_model->isAsking() && !m_model->agentToRemove());
    QCOMPARE(m_model->agentsTitle(), QStringLiteral("Background Items (0)"));
    QCOMPARE(m_model->module()->title(), QStringLiteral("Maintenance"));
    QCOMPARE(m_model->module()->subtitle(), QStringLiteral("Speed up and maintain your Mac"));
}

void MaintenanceViewModelTest::runsATaskToItsEnd()
{
    m_model->run(MaintenanceTask::ReindexSpotlight);
    QVERIFY(state(MaintenanceTask::ReindexSpotlight) == TaskState::running());
    QCOMPARE(m_model->taskStates().size(), std::size_t{ 1 });
    waitForStarts(1);
    const ChildProcess process = m_home->processes->started().front();
    QVERIFY(process.program == host().environment.scriptInterpreter);
    const std::vector<std::string> arguments{ "-e",
        "do shell script \"/usr/bin/mdutil -E /\" with administrator privileges" };
    QCOMPARE(process.arguments, arguments);
    QCoreApplication::processEvents();
    QVERIFY(state(MaintenanceTask::ReindexSpotlight) == TaskState::running());
    m_home->processes->end("mdutil", TestProcessRunner::exited(0, "a warning"));
    QTRY_VERIFY(state(MaintenanceTask::ReindexSpotlight) == TaskState::done());
}

void MaintenanceViewModelTest::twoTasksEndInEitherOrder_data()
{
    QTest::addColumn<bool>("firstEndsFirst");
    QTest::newRow("in their order") << true;
    QTest::newRow("the other way round") << false;
}

void MaintenanceViewModelTest::twoTasksEndInEitherOrder()
{
    QFETCH(bool, firstEndsFirst);
    m_model->run(MaintenanceTask::FreeRAM);
    m_model->run(MaintenanceTask::FlushDNS);
    waitForStarts(2);
    QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::running());
    QVERIFY(state(MaintenanceTask::FlushDNS) == TaskState::running());
    const auto endFreeRAM = [&] {
        m_home->processes->end("purge", TestProcessRunner::exited(0));
        QTRY_VERIFY(state(MaintenanceTask::FreeRAM) == TaskState::done());
    };
    const auto endFlushDNS = [&] {
        m_home->processes->end("dscacheutil", TestProcessRunner::exited(1, "no\n"));
        QTRY_VERIFY(state(MaintenanceTask::FlushDNS) == TaskState::failed(QStringLiteral("no")));
    };
    if (firstEndsFirst) {
        endFreeRAM();
        QVERIFY(state(MaintenanceTask::FlushDNS) == TaskState::running());
        endFlushDNS();
    } else {
        endFlushDNS();
        QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::running());
        endFreeRAM();
    }
    QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::done());
    QVERIFY(state(MaintenanceTask::FlushDNS) == TaskState::failed(QStringLiteral("no")));
    QVERIFY(!state(MaintenanceTask::ReindexSpotlight));
}

void MaintenanceViewModelTest::aFailureIsToldUntilTheTaskSucceeds()
{
    m_model->run(MaintenanceTask::FlushDNS);
    m_home->processes->end("dscacheutil", TestProcessRunner::exited(1, "  User canceled. (-128)\n"));
    QTRY_VERIFY(state(MaintenanceTask::FlushDNS) == TaskState::failed(QStringLiteral("User canceled. (-128)")));
    m_model->run(MaintenanceTask::FlushDNS);
    QVERIFY(state(MaintenanceTask::FlushDNS) == TaskState::running());
    m_home->processes->end("dscacheutil", TestProcessRunner::exited(0));
    QTRY_VERIFY(state(MaintenanceTask::FlushDNS) == TaskState::done());
}

void MaintenanceViewModelTest::aFailureMaySayNothing()
{
    m_model->run(MaintenanceTask::FreeRAM);
    m_home->processes->end("purge", TestProcessRunner::exited(1));
    QTRY_VERIFY(state(MaintenanceTask::FreeRAM) == TaskState::failed({}));
    m_model->run(MaintenanceTask::FreeRAM);
    m_home->processes->end("purge", TestProcessRunner::exited(1, "\xff\xfe"));
    QTRY_VERIFY(state(MaintenanceTask::FreeRAM) == TaskState::failed(QStringLiteral("Unknown error")));
}

void MaintenanceViewModelTest::everyPressOfTheSameTaskRunsIt()
{
    for (int press = 0; press < 5; ++press) {
        m_model->run(MaintenanceTask::FreeRAM);
        QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::running());
    }
    waitForStarts(5);
    QSignalSpy changes(m_model->taskRows(), &TaskListModel::dataChanged);
    for (int end = 0; end < 4; ++end)
        m_home->processes->end("purge", TestProcessRunner::exited(1, "busy"));
    QTRY_COMPARE(changes.count(), 4);
    QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::failed(QStringLiteral("busy")));
    m_home->processes->end("purge", TestProcessRunner::exited(0));
    QTRY_VERIFY(state(MaintenanceTask::FreeRAM) == TaskState::done());
    QCOMPARE(m_model->taskStates().size(), std::size_t{ 1 });
}

void MaintenanceViewModelTest::tellsWhyATaskCannotBeStarted()
{
    // An interpreter that is there, and not to be executed.
    host().processes = makeProcessRunner();
    m_model = std::make_unique<MaintenanceViewModel>(host(), m_home->work);
    m_model->run(MaintenanceTask::FreeRAM);
    QTRY_VERIFY(state(MaintenanceTask::FreeRAM) != TaskState::running());
    QVERIFY(state(MaintenanceTask::FreeRAM)->kind == TaskState::Kind::Failed);
    QVERIFY(!state(MaintenanceTask::FreeRAM)->message.isEmpty());
}

void MaintenanceViewModelTest::runsWhatTheScreenNamesAndNothingElse()
{
    for (const char* name : { "", "freeram", "purge", "freeRAM " })
        m_model->runTask(QString::fromUtf8(name));
    QVERIFY(m_model->taskStates().empty());
    m_model->runTask(QStringLiteral("freeRAM"));
    QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::running());
    m_home->processes->end("purge", TestProcessRunner::exited(0));
    QTRY_VERIFY(state(MaintenanceTask::FreeRAM) == TaskState::done());
    QCOMPARE(m_home->processes->started().size(), std::size_t{ 1 });
}

void MaintenanceViewModelTest::manyTasksHoldUpNothingElse()
{
    writeFile(host().environment.home / "Library/LaunchAgents/org.example.sync.plist", "");
    QThreadPool& shared = backgroundThreads();
    const int threads = shared.maxThreadCount();
    shared.setMaxThreadCount(2);
    const int tasks = 7;
    for (int task = 0; task < tasks; ++task)
        m_model->run(MaintenanceTask::FreeRAM);
    waitForStarts(static_cast<std::size_t>(tasks));
    m_model->loadAgents();
    QTRY_COMPARE(m_model->agents().size(), std::size_t{ 1 });
    QVERIFY(state(MaintenanceTask::FreeRAM) == TaskState::running());
    shared.setMaxThreadCount(threads);
}

void MaintenanceViewModelTest::aTaskOutlivesItsScreen()
{
    m_model->run(MaintenanceTask::FreeRAM);
    waitForStarts(1);
    m_model.reset();
    m_home->processes->end("purge", TestProcessRunner::exited(0));
    m_home->work->threads().waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(m_home->processes->cancelled(), 0);
}

void MaintenanceViewModelTest::theEndOfTheThreadsEndsWhatRuns()
{
    m_model->run(MaintenanceTask::FreeRAM);
    m_model->run(MaintenanceTask::FlushDNS);
    waitForStarts(2);
    m_model.reset();
    m_home->work.reset();
    QCOMPARE(m_home->processes->cancelled(), 2);
}

void MaintenanceViewModelTest::saysWhatIsMissing()
{
    const auto runnable
        = [&](int row) { return m_model->taskRows()->index(row).data(TaskListModel::RunnableRole).toBool(); };
    m_model->appear();
    drain();
    for (int row = 0; row < 3; ++row)
        QVERIFY(runnable(row));
    // Without the interpreter it is the host's own means that count, where it has any.
    std::filesystem::remove(host().environment.scriptInterpreter);
    m_model->appear();
    drain();
    for (int row = 0; row < 3; ++row) {
        const MaintenanceTask task = allMaintenanceTasks.at(static_cast<std::size_t>(row));
        const std::optional<std::string> missing = MaintenanceRunner::missingMeans(task, host());
        QCOMPARE(runnable(row), !missing);
        QCOMPARE(m_model->taskRows()->index(row).data(TaskListModel::MessageRole).toString().toStdString(),
            missing.value_or(""));
    }
    QVERIFY(m_model->taskStates().empty() && m_home->processes->started().empty());
}

QTEST_GUILESS_MAIN(MaintenanceViewModelTest)
#include "MaintenanceViewModelTest.moc"
