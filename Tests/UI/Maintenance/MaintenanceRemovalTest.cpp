// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceAgentsFixture.h"
#include "UI/Background.h"

#include <QThreadPool>

using namespace Korvane;
namespace fs = std::filesystem;

/// What starts by itself, removed to a real Trash.
class MaintenanceRemovalTest : public MaintenanceAgentsFixture {
    Q_OBJECT

private Q_SLOTS:
    void removesAnAgentAndLooksAgain();
    void removesItAlsoWhenTheServiceManagerFails();
    void removesItAlsoWithoutAServiceManager();
    void aFileThatIsGoneIsNoLongerListed();
    void leavesAgentsOfTheSystemAlone();
    void removesOnceHoweverOftenItIsConfirmed();
    void finishesARemovalWhenTheScreenIsGone();
    void finishesARemovalAtTheEndOfTheApplication();
    void waitingForTheServiceManagerHoldsUpNothingElse();
};

void MaintenanceRemovalTest::removesAnAgentAndLooksAgain()
{
    install(userAgents(), "org.example.sync");
    install(userAgents(), "org.example.update");
    load();
    remove("org.example.sync", 0);
    QCOMPARE(labels(), QStringList{ QStringLiteral("org.example.update") });
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
    QVERIFY(fs::exists(userAgents() / "org.example.update.plist"));
    const std::vector<ChildProcess> started = m_home->processes->started();
    QCOMPARE(started.size(), std::size_t{ 1 });
    QVERIFY(started.front().program == host().environment.serviceManager);
    const std::vector<std::string> arguments{ "bootout", "gui/" + std::to_string(host().environment.userId),
        (userAgents() / "org.example.sync.plist").string() };
    QCOMPARE(started.front().arguments, arguments);
}

void MaintenanceRemovalTest::removesItAlsoWhenTheServiceManagerFails()
{
    install(userAgents(), "org.example.sync");
    load();
    remove("org.example.sync", 5);
    QVERIFY(m_model->agents().empty());
    QCOMPARE(m_model->agentsTitle(), QStringLiteral("Background Items (0)"));
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceRemovalTest::removesItAlsoWithoutAServiceManager()
{
    host().processes = makeProcessRunner();
    make();
    install(userAgents(), "org.example.sync");
    load();
    QVERIFY(!fs::exists(host().environment.serviceManager));
    m_model->remove(agent("org.example.sync"));
    QTRY_VERIFY(m_model->agents().empty());
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceRemovalTest::aFileThatIsGoneIsNoLongerListed()
{
    install(userAgents(), "org.example.sync");
    install(userAgents(), "org.example.update");
    load();
    fs::remove(userAgents() / "org.example.sync.plist");
    remove("org.example.sync", 0);
    QCOMPARE(labels(), QStringList{ QStringLiteral("org.example.update") });
}

void MaintenanceRemovalTest::leavesAgentsOfTheSystemAlone()
{
    install(systemAgents(), "org.example.agent");
    install(systemDaemons(), "org.example.daemon");
    load();
    for (const char* label : { "org.example.agent", "org.example.daemon" }) {
        m_model->remove(agent(label));
        m_model->ask(idOf(label));
        QVERIFY(!m_model->isAsking());
        m_model->removeAsked();
    }
    drain();
    QVERIFY(m_home->processes->started().empty());
    QVERIFY(fs::exists(systemAgents() / "org.example.agent.plist"));
    QVERIFY(fs::exists(systemDaemons() / "org.example.daemon.plist"));
    QCOMPARE(m_model->agents().size(), std::size_t{ 2 });
}

void MaintenanceRemovalTest::removesOnceHoweverOftenItIsConfirmed()
{
    install(userAgents(), "org.example.sync");
    load();
    m_model->ask(idOf("org.example.sync"));
    QVERIFY(m_model->isAsking());
    QCOMPARE(m_model->question(), QStringLiteral("Remove org.example.sync?"));
    for (int press = 0; press < 3; ++press)
        m_model->removeAsked();
    QVERIFY(!m_model->isAsking());
    m_home->processes->end(".plist", TestProcessRunner::exited(0));
    QTRY_VERIFY(m_model->agents().empty());
    QCOMPARE(m_home->processes->started().size(), std::size_t{ 1 });
}

void MaintenanceRemovalTest::finishesARemovalWhenTheScreenIsGone()
{
    install(userAgents(), "org.example.sync");
    load();
    m_model->remove(agent("org.example.sync"));
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    m_model.reset();
    // The screen that is there by then shows what came of it.
    make();
    load();
    QCOMPARE(labels(), QStringList{ QStringLiteral("org.example.sync") });
    m_home->processes->end(".plist", TestProcessRunner::exited(0));
    QTRY_VERIFY(labels().empty());
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceRemovalTest::finishesARemovalAtTheEndOfTheApplication()
{
    install(userAgents(), "org.example.sync");
    load();
    m_model->remove(agent("org.example.sync"));
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    m_model.reset();
    // The service manager never ends.
    m_home->work.reset();
    QCOMPARE(m_home->processes->cancelled(), 1);
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceRemovalTest::waitingForTheServiceManagerHoldsUpNothingElse()
{
    QThreadPool& shared = backgroundThreads();
    const int threads = shared.maxThreadCount();
    shared.setMaxThreadCount(1);
    for (const char* label : { "a.first", "b.second", "c.third" })
        install(userAgents(), label);
    load();
    for (const char* label : { "a.first", "b.second" })
        m_model->remove(agent(label));
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 2 });
    load();
    QCOMPARE(labels().size(), 3);
    shared.setMaxThreadCount(threads);
}

QTEST_GUILESS_MAIN(MaintenanceRemovalTest)
#include "MaintenanceRemovalTest.moc"
