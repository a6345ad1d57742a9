// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Maintenance/MaintenanceHome.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "UI/MaintenanceViewModel.h"

#include <QSignalSpy>
#include <QtTest>

#include <iterator>
#include <stdexcept>

using namespace Korvane;
namespace fs = std::filesystem;

/// What starts by itself, found in real folders and removed to a real Trash.
class MaintenanceAgentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsWhatStartsByItself();
    void removesAnAgentAndLooksAgain();
    void removesItAlsoWhenTheServiceManagerFails();
    void removesItAlsoWithoutAServiceManager();
    void aFileThatIsGoneIsNoLongerListed();
    void leavesAgentsOfTheSystemAlone();
    void removesOnceHoweverOftenItIsConfirmed();
    void theAgentAskedAboutMayBeFoundAgainMeanwhile();
    void puttingTheQuestionAwayRemovesNothing();
    void aSecondSearchReplacesTheFirst();
    void finishesARemovalWhenTheScreenIsGone();
    void mayBeDestroyedWhileSearching();
    void manyHostileListsAreListed();

private:
    Host& host() const { return m_home->test.host; }
    fs::path home() const { return host().environment.home; }
    fs::path userAgents() const { return home() / "Library/LaunchAgents"; }
    fs::path systemAgents() const { return host().environment.machineLibrary / "LaunchAgents"; }
    fs::path systemDaemons() const { return host().environment.machineLibrary / "LaunchDaemons"; }
    static void install(const fs::path& folder, const std::string& label, const std::string& program = {});
    void make();
    void load();
    /// Removes the first agent of this label, however the service manager ends.
    void remove(const std::string& label, int managerStatus);
    QStringList labels() const;
    LaunchAgent agent(const std::string& label) const;
    QString idOf(const std::string& label) const { return QString::fromStdString(agent(label).id.toString()); }

    std::unique_ptr<MaintenanceHome> m_home;
    std::unique_ptr<MaintenanceViewModel> m_model;
};

void MaintenanceAgentsTest::init()
{
    m_home = std::make_unique<MaintenanceHome>();
    make();
}

void MaintenanceAgentsTest::cleanup()
{
    m_model.reset();
    drain();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void MaintenanceAgentsTest::install(const fs::path& folder, const std::string& label, const std::string& program)
{
    const std::string runs = program.empty() ? "" : "<key>Program</key><string>" + program + "</string>";
    writeFile(folder / (label + ".plist"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string>" + runs + "</dict></plist>\n");
}

void MaintenanceAgentsTest::make() { m_model = std::make_unique<MaintenanceViewModel>(host(), m_home->waiting); }

void MaintenanceAgentsTest::load()
{
    QSignalSpy loaded(m_model.get(), &MaintenanceViewModel::agentsChanged);
    m_model->loadAgents();
    QTRY_COMPARE(loaded.count(), 1);
}

void MaintenanceAgentsTest::remove(const std::string& label, int managerStatus)
{
    m_home->processes->end(
        ".plist", TestProcessRunner::exited(managerStatus, "Boot-out failed: 5: Input/output error"));
    QSignalSpy loaded(m_model.get(), &MaintenanceViewModel::agentsChanged);
    m_model->remove(agent(label));
    QTRY_COMPARE(loaded.count(), 1);
}

QStringList MaintenanceAgentsTest::labels() const
{
    QStringList labels;
    for (const LaunchAgent& agent : m_model->agents())
        labels.append(QString::fromStdString(agent.label));
    return labels;
}

LaunchAgent MaintenanceAgentsTest::agent(const std::string& label) const
{
    for (const LaunchAgent& agent : m_model->agents()) {
        if (agent.label == label)
            return agent;
    }
    throw std::out_of_range(label + " is not listed");
}

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

void MaintenanceAgentsTest::removesAnAgentAndLooksAgain()
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

void MaintenanceAgentsTest::removesItAlsoWhenTheServiceManagerFails()
{
    install(userAgents(), "org.example.sync");
    load();
    remove("org.example.sync", 5);
    QVERIFY(m_model->agents().empty());
    QCOMPARE(m_model->agentsTitle(), QStringLiteral("Background Items (0)"));
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
}

void MaintenanceAgentsTest::removesItAlsoWithoutAServiceManager()
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

void MaintenanceAgentsTest::aFileThatIsGoneIsNoLongerListed()
{
    install(userAgents(), "org.example.sync");
    install(userAgents(), "org.example.update");
    load();
    fs::remove(userAgents() / "org.example.sync.plist");
    remove("org.example.sync", 0);
    QCOMPARE(labels(), QStringList{ QStringLiteral("org.example.update") });
}

void MaintenanceAgentsTest::leavesAgentsOfTheSystemAlone()
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

void MaintenanceAgentsTest::removesOnceHoweverOftenItIsConfirmed()
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

void MaintenanceAgentsTest::finishesARemovalWhenTheScreenIsGone()
{
    install(userAgents(), "org.example.sync");
    load();
    m_model->remove(agent("org.example.sync"));
    QTRY_COMPARE(m_home->processes->started().size(), std::size_t{ 1 });
    m_model.reset();
    m_home->processes->end(".plist", TestProcessRunner::exited(0));
    drain();
    QVERIFY(isInTestTrash(host().environment, "org.example.sync.plist"));
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
