// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/AgentListModel.h"
#include "UI/Maintenance/TaskListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
using Domain = LaunchAgent::Domain;
using Status = TaskListModel::Status;

/// What the cards and the rows of the maintenance screen are told.
class MaintenanceModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cardsShowTheTasksInOrder();
    void cardsTellHowATaskStands();
    void cardsTellWhatIsMissing();
    void rowsShowProgramOrPath();
    void rowsShowHostileNamesHarmlessly();
    void agentsAreFoundByTheirIds();
    void rowsFoundAgainStayWhereTheyAre_data();
    void rowsFoundAgainStayWhereTheyAre();
    void rowsInAnotherOrderAreShownAfresh();
};

namespace {

QString text(const QAbstractItemModel& model, int row, int role) { return model.index(row, 0).data(role).toString(); }

LaunchAgent agent(const QString& label, Domain domain = Domain::User)
{
    return { "/agents/" + label.toStdString() + ".plist", label.toStdString(), std::nullopt, domain };
}

std::vector<LaunchAgent> agents(const QString& labels)
{
    std::vector<LaunchAgent> made;
    for (const QChar label : labels)
        made.push_back(agent(QString(label)));
    return made;
}

QString labels(const AgentListModel& model)
{
    QString labels;
    for (int row = 0; row < model.rowCount(); ++row)
        labels += text(model, row, AgentListModel::LabelRole);
    return labels;
}

} // namespace

void MaintenanceModelsTest::cardsShowTheTasksInOrder()
{
    TaskListModel model;
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(text(model, 0, TaskListModel::TaskIdRole), QStringLiteral("freeRAM"));
    QCOMPARE(text(model, 0, TaskListModel::TitleRole), QStringLiteral("Free Up RAM"));
    QCOMPARE(text(model, 0, TaskListModel::SubtitleRole), QStringLiteral("Purge inactive memory to relieve pressure"));
    QCOMPARE(text(model, 0, TaskListModel::SymbolRole), QStringLiteral("memorychip"));
    QCOMPARE(text(model, 1, TaskListModel::TitleRole), QStringLiteral("Flush DNS Cache"));
    QCOMPARE(text(model, 1, TaskListModel::SubtitleRole), QStringLiteral("Fix stale DNS lookups and network glitches"));
    QCOMPARE(text(model, 1, TaskListModel::SymbolRole), QStringLiteral("network"));
    QCOMPARE(text(model, 2, TaskListModel::TitleRole), QStringLiteral("Reindex Spotlight"));
    QCOMPARE(text(model, 2, TaskListModel::SubtitleRole), QStringLiteral("Rebuild the search index from scratch"));
    QCOMPARE(text(model, 2, TaskListModel::SymbolRole), QStringLiteral("magnifyingglass.circle"));
}

void MaintenanceModelsTest::cardsTellHowATaskStands()
{
    TaskListModel model;
    const QAbstractItemModelTester tester(&model);
    const auto status = [&](int row) { return Status(model.index(row).data(TaskListModel::StatusRole).toInt()); };
    const auto runnable = [&](int row) { return model.index(row).data(TaskListModel::RunnableRole).toBool(); };
    QVERIFY(status(1) == Status::NotRun && runnable(1) && model.states().empty());
    QSignalSpy changes(&model, &TaskListModel::dataChanged);
    model.setState(MaintenanceTask::FlushDNS, TaskState::running());
    QVERIFY(status(1) == Status::Running && !runnable(1));
    QVERIFY(status(0) == Status::NotRun && runnable(0));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().toModelIndex().row(), 1);
    model.setState(MaintenanceTask::FlushDNS, TaskState::failed(QStringLiteral("User canceled. (-128)")));
    QVERIFY(status(1) == Status::Failed && runnable(1));
    QCOMPARE(text(model, 1, TaskListModel::MessageRole), QStringLiteral("User canceled. (-128)"));
    model.setState(MaintenanceTask::FlushDNS, TaskState::done());
    QVERIFY(status(1) == Status::Done && runnable(1));
    QCOMPARE(text(model, 1, TaskListModel::MessageRole), QString());
}

void MaintenanceModelsTest::cardsTellWhatIsMissing()
{
    TaskListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setMissing({ { MaintenanceTask::FreeRAM, QStringLiteral("pkexec is missing") } });
    QVERIFY(Status(model.index(0).data(TaskListModel::StatusRole).toInt()) == Status::Unavailable);
    QVERIFY(!model.index(0).data(TaskListModel::RunnableRole).toBool());
    QCOMPARE(text(model, 0, TaskListModel::MessageRole), QStringLiteral("pkexec is missing"));
    QVERIFY(model.index(1).data(TaskListModel::RunnableRole).toBool());
    model.setMissing({});
    QVERIFY(model.index(0).data(TaskListModel::RunnableRole).toBool());
}

void MaintenanceModelsTest::rowsShowProgramOrPath()
{
    AgentListModel model;
    const QAbstractItemModelTester tester(&model);
    LaunchAgent runs = agent(QStringLiteral("a"));
    runs.program = "/opt/tool/bin/helper";
    model.setAgents(
        { runs, agent(QStringLiteral("b"), Domain::SystemAgents), agent(QStringLiteral("c"), Domain::SystemDaemons) });
    QCOMPARE(text(model, 0, AgentListModel::DetailRole), QStringLiteral("/opt/tool/bin/helper"));
    QCOMPARE(text(model, 0, AgentListModel::PathRole), QStringLiteral("/agents/a.plist"));
    QCOMPARE(text(model, 1, AgentListModel::DetailRole), QStringLiteral("/agents/b.plist"));
    QCOMPARE(text(model, 0, AgentListModel::DomainRole), QStringLiteral("User Agents"));
    QCOMPARE(text(model, 1, AgentListModel::DomainRole), QStringLiteral("System Agents"));
    QCOMPARE(text(model, 2, AgentListModel::DomainRole), QStringLiteral("System Daemons"));
    const auto removable = [&](int row) { return model.index(row).data(AgentListModel::RemovableRole).toBool(); };
    QVERIFY(removable(0) && !removable(1) && !removable(2));
}

void MaintenanceModelsTest::rowsShowHostileNamesHarmlessly()
{
    AgentListModel model;
    LaunchAgent hostile = agent(QStringLiteral("a"));
    hostile.label = "two\nlines \xff \xe2\x80\xae"
                    "gpj";
    hostile.program = "/bin/\x1b[31mred";
    model.setAgents({ hostile });
    const QString label = text(model, 0, AgentListModel::LabelRole);
    QVERIFY(!label.contains(QLatin1Char('\n')) && !label.contains(QChar(0x202e)));
    QVERIFY(label.contains(QChar(0xfffd)) && label.contains(QStringLiteral("[U+202E]")));
    QVERIFY(!text(model, 0, AgentListModel::DetailRole).contains(QChar(0x1b)));
}

void MaintenanceModelsTest::agentsAreFoundByTheirIds()
{
    AgentListModel model;
    model.setAgents(agents(QStringLiteral("ab")));
    const QString id = text(model, 1, AgentListModel::AgentIdRole);
    QVERIFY(model.agent(id) != nullptr);
    QCOMPARE(model.agent(id)->label, std::string("b"));
    model.setAgents(agents(QStringLiteral("ab")));
    QVERIFY(model.agent(id) == nullptr && model.agent({}) == nullptr);
}

void MaintenanceModelsTest::rowsFoundAgainStayWhereTheyAre_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("removals");
    QTest::addColumn<int>("insertions");
    const auto row = [](const char* before, const char* after, int removals, int insertions) {
        QTest::addRow("%s to %s", before, after)
            << QString::fromUtf8(before) << QString::fromUtf8(after) << removals << insertions;
    };
    row("", "", 0, 0);
    row("", "abc", 0, 1);
    row("abc", "", 1, 0);
    row("abc", "abc", 0, 0);
    row("abc", "bc", 1, 0);
    row("abc", "ac", 1, 0);
    row("abc", "ab", 1, 0);
    row("abcdef", "be", 3, 0);
    row("be", "abcdef", 0, 3);
    row("abd", "acd", 1, 1);
}

void MaintenanceModelsTest::rowsFoundAgainStayWhereTheyAre()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    AgentListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setAgents(agents(before));
    QSignalSpy removals(&model, &AgentListModel::rowsRemoved);
    QSignalSpy insertions(&model, &AgentListModel::rowsInserted);
    QSignalSpy resets(&model, &AgentListModel::modelReset);
    const std::vector<LaunchAgent> found = agents(after);
    model.setAgents(found);
    QCOMPARE(labels(model), after);
    QCOMPARE(model.agents(), found);
    QTEST(int(removals.count()), "removals");
    QTEST(int(insertions.count()), "insertions");
    QCOMPARE(resets.count(), 0);
}

void MaintenanceModelsTest::rowsInAnotherOrderAreShownAfresh()
{
    AgentListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setAgents(agents(QStringLiteral("abc")));
    QSignalSpy resets(&model, &AgentListModel::modelReset);
    model.setAgents(agents(QStringLiteral("cab")));
    QCOMPARE(labels(model), QStringLiteral("cab"));
    QCOMPARE(resets.count(), 1);
}

QTEST_GUILESS_MAIN(MaintenanceModelsTest)
#include "MaintenanceModelsTest.moc"
