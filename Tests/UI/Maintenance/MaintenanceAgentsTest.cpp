// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceAgentsFixture.h"

#include <QSignalSpy>
#include <QtTest>

#include <iterator>

using namespace Korvane;
namespace fs = std::filesystem;

/// What starts by itself, found in real folders and removed to a real Trash.
class MaintenanceAgentsTest : public MaintenanceAgentsFixture {
    Q_OBJECT

private Q_SLOTS:
    void listsWhatStartsByItself();
    void theAgentAskedAboutMayBeFoundAgainMeanwhile();
    void puttingTheQuestionAwayRemovesNothing();
    void aSecondSearchReplacesTheFirst();
    void mayBeDestroyedWhileSearching();
    void manyHostileListsAreListed();
};

void MaintenanceAgentsTest::listsWhatStartsByItself()
{
    install(userAgents(), "org.example.sync", "/opt/sync/bin/sync");
    install(systemAgents(), "net.example.menu");
    install(systemDaemons(), "com.example.daemon");
    writeFile(userAgents() / "broken.plist", "no property list");
    load();
    const QStringList expected{ QStringLiteral("broken"), QStringLiteral("com.example.daemon"),
        QStringLiteral("net.example.menu"), QStringLiteral("org.example.sync") };
    QCOMPARE(labels(), expected);
    QCOMPARE(m_model->agentsTitle(), QStringLiteral("Background Items (4)"));
    QCOMPARE(m_model->agentRows()->rowCount(), 4);
    const QModelIndex last = m_model->agentRows()->index(3);
    QCOMPARE(last.data(AgentListModel::DetailRole).toString(), QStringLiteral("/opt/sync/bin/sync"));
}

void MaintenanceAgentsTest::theAgentAskedAboutMayBeFoundAgainMeanwhile()
{
    install(userAgents(), "org.example.sync");
    load();
    const LaunchAgent asked = agent("org.example.sync");
    m_model->ask(idOf("org.example.sync"));
    load();
    QVERIFY(agent("org.example.sync").id != asked.id);
    QVERIFY(m_model->agentToRemove() == asked);
    m_home->processes->end(".plist", TestProcessRunner::exited(0));
    m_model->removeAsked();
    QTRY_VERIFY(m_model->agents().empty());
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceAgentsTest::puttingTheQuestionAwayRemovesNothing()
{
    install(userAgents(), "org.example.sync");
    load();
    m_model->ask(idOf("org.example.sync"));
    m_model->stopAsking();
    QVERIFY(!m_model->isAsking() && !m_model->agentToRemove());
    m_model->removeAsked();
    drain();
    QVERIFY(m_home->processes->started().empty());
    QVERIFY(fs::exists(userAgents() / "org.example.sync.plist"));
}

void MaintenanceAgentsTest::aSecondSearchReplacesTheFirst()
{
    install(userAgents(), "org.example.sync");
    QSignalSpy loaded(m_model.get(), &MaintenanceViewModel::agentsChanged);
    for (int search = 0; search < 5; ++search)
        m_model->loadAgents();
    drain();
    QTRY_COMPARE(m_model->agents().size(), std::size_t{ 1 });
    QCOMPARE(loaded.count(), 1);
}

void MaintenanceAgentsTest::mayBeDestroyedWhileSearching()
{
    for (int i = 0; i < 500; ++i)
        install(userAgents(), "org.example.agent" + std::to_string(i));
    m_model->loadAgents();
    m_model.reset();
    drain();
    QCOMPARE(std::distance(fs::directory_iterator(userAgents()), fs::directory_iterator()), std::ptrdiff_t{ 500 });
}

void MaintenanceAgentsTest::manyHostileListsAreListed()
{
    for (int i = 0; i < 1500; ++i) {
        writeFile(userAgents() / ("bad" + std::to_string(i) + ".plist"), "<plist><dict><key>Label</key>");
        writeFile(systemAgents() / ("line\n" + std::to_string(i) + ".plist"), "bplist00\xff\xff\xff\xff");
    }
    load();
    QCOMPARE(m_model->agents().size(), std::size_t{ 3000 });
    QCOMPARE(m_model->agentsTitle(), QStringLiteral("Background Items (3000)"));
    for (int row = 0; row < 3000; ++row)
        QVERIFY(!m_model->agentRows()->index(row).data(AgentListModel::LabelRole).toString().isEmpty());
}

QTEST_GUILESS_MAIN(MaintenanceAgentsTest)
#include "MaintenanceAgentsTest.moc"
