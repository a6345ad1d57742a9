// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/SingleInstance.h"
#include "Tests/App/OtherStart.h"
#include "Tests/Support/TemporaryFolder.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Korvane;

namespace {

using Outcome = SingleInstance::Outcome;

QString name(const SingleInstance& instance) { return QString::fromStdString(instance.socket()->native()); }

/// Holds the lock of an application that runs without doing anything.
FileDescriptor lockOf(const SingleInstance& instance)
{
    FileDescriptor file(::open((instance.socket()->native() + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(file) : FileDescriptor();
}

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void theFirstGoesOn();
    void theSecondBringsTheFirstToTheFront();
    void handsOnTheDesktopsPermission_data();
    void handsOnTheDesktopsPermission();
    void othersAreNotInTheWay();
    void takesOverFromOneThatCrashed();
    void takesOverFromOneThatIsJustEnding();
    void waitsForOneThatIsJustBeginning();
    void isNotHeldUpByOneThatHangs();
    void isNotHeldUpByOneThatDoesNotListen();
    void heedsNothingElse_data();
    void heedsNothingElse();
    void oneThatSaysNothingHoldsUpNobody();

private:
    std::unique_ptr<TemporaryFolder> m_folder;
    Environment m_environment;
    std::filesystem::path m_runtime;
};

void SingleInstanceTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_environment = Environment::inFolder(m_folder->path());
    m_runtime = *m_folder / "run";
    QCOMPARE(::mkdir(m_runtime.c_str(), 0700), 0);
}

void SingleInstanceTest::theFirstGoesOn()
{
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QVERIFY(first.socket()->parent_path() == m_runtime);
}

void SingleInstanceTest::theSecondBringsTheFirstToTheFront()
{
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QSignalSpy shown(&first, &SingleInstance::shownAgain);
    for (int count = 1; count <= 3; ++count) {
        const OtherStart second(m_environment, m_runtime);
        QTRY_VERIFY(second.hasEnded());
        QVERIFY(second.outcome() == Outcome::Shown);
        QCOMPARE(shown.count(), count);
    }
}

void SingleInstanceTest::handsOnTheDesktopsPermission_data()
{
    QTest::addColumn<QByteArray>("token");
    QTest::addColumn<QByteArray>("received");
    QTest::newRow("none") << QByteArray() << QByteArray();
    QTest::newRow("one") << QByteArray("kwin-42_TIME17") << QByteArray("kwin-42_TIME17");
    QTest::newRow("of two lines") << QByteArray("a\nshow b") << QByteArray();
    QTest::newRow("endless") << QByteArray(100'000, 'x') << QByteArray();
}

void SingleInstanceTest::handsOnTheDesktopsPermission()
{
    QFETCH(const QByteArray, token);
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QSignalSpy shown(&first, &SingleInstance::shownAgain);
    const OtherStart second(m_environment, m_runtime, token);
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::Shown);
    QCOMPARE(shown.count(), 1);
    QTEST(shown.at(0).at(0).toByteArray(), "received");
}

void SingleInstanceTest::othersAreNotInTheWay()
{
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    SingleInstance onAnotherDisplay(m_environment, m_runtime, "another display");
    QVERIFY(onAnotherDisplay.claim() == Outcome::First);
    Environment elsewhere = m_environment;
    elsewhere.home = *m_folder / "another home";
    SingleInstance inAnotherHome(elsewhere, m_runtime, "display");
    QVERIFY(inAnotherHome.claim() == Outcome::First);
    SingleInstance inAnotherSession(m_environment, {}, "display");
    QVERIFY(inAnotherSession.claim() == Outcome::First);
}

void SingleInstanceTest::takesOverFromOneThatCrashed()
{
    std::optional<SingleInstance> second;
    second.emplace(m_environment, m_runtime, "display");
    // A socket that nobody listens on any more, and a lock that nobody holds.
    const pid_t child = ::fork();
    if (child == 0) {
        SingleInstance crashing(m_environment, m_runtime, "display");
        ::_exit(crashing.claim() == Outcome::First ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QVERIFY(std::filesystem::is_socket(*second->socket()));
    QVERIFY(second->claim() == Outcome::First);
    QSignalSpy shown(&*second, &SingleInstance::shownAgain);
    const OtherStart third(m_environment, m_runtime);
    QTRY_VERIFY(third.hasEnded());
    QVERIFY(third.outcome() == Outcome::Shown);
    QCOMPARE(shown.count(), 1);
}

void SingleInstanceTest::takesOverFromOneThatIsJustEnding()
{
    const SingleInstance place(m_environment, m_runtime, "display");
    FileDescriptor lock = lockOf(place);
    QVERIFY(lock);
    const OtherStart second(m_environment, m_runtime);
    QTest::qWait(200);
    QVERIFY(!second.hasEnded());
    lock.close();
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::First);
}

void SingleInstanceTest::waitsForOneThatIsJustBeginning()
{
    const SingleInstance place(m_environment, m_runtime, "display");
    const FileDescriptor lock = lockOf(place);
    QVERIFY(lock);
    const OtherStart second(m_environment, m_runtime);
    QTest::qWait(200);
    QLocalServer late;
    QVERIFY(late.listen(name(place)));
    QTRY_VERIFY(late.hasPendingConnections());
    QLocalSocket* client = late.nextPendingConnection();
    client->write("shown\n");
    QVERIFY(client->flush());
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::Shown);
}

void SingleInstanceTest::isNotHeldUpByOneThatHangs()
{
    const SingleInstance place(m_environment, m_runtime, "display");
    const FileDescriptor lock = lockOf(place);
    QLocalServer hanging;
    QVERIFY(hanging.listen(name(place)));
    OtherStart second(m_environment, m_runtime);
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::Silent);
    QVERIFY2(second.milliseconds() < 2000, qPrintable(QString::number(second.milliseconds())));
}

void SingleInstanceTest::isNotHeldUpByOneThatDoesNotListen()
{
    const SingleInstance place(m_environment, m_runtime, "display");
    const FileDescriptor lock = lockOf(place);
    OtherStart second(m_environment, m_runtime);
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::Silent);
    QVERIFY2(second.milliseconds() < 2000, qPrintable(QString::number(second.milliseconds())));
}

void SingleInstanceTest::heedsNothingElse_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("another word") << QByteArray("quit\n");
    QTest::newRow("a longer word") << QByteArray("showing\n");
    QTest::newRow("an empty line") << QByteArray("\n");
    QTest::newRow("no line") << QByteArray(100'000, 's');
    QTest::newRow("an endless line") << QByteArray("show ") + QByteArray(100'000, 's') + '\n';
    QTest::newRow("zeros") << QByteArray(64, '\0') + '\n';
}

void SingleInstanceTest::heedsNothingElse()
{
    QFETCH(const QByteArray, message);
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QSignalSpy shown(&first, &SingleInstance::shownAgain);
    QLocalSocket client;
    client.connectToServer(name(first));
    QVERIFY(client.waitForConnected());
    client.write(message);
    QTRY_COMPARE(client.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(shown.count(), 0);
    QCOMPARE(client.readAll(), QByteArray());
}

void SingleInstanceTest::oneThatSaysNothingHoldsUpNobody()
{
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QLocalSocket silent;
    silent.connectToServer(name(first));
    QVERIFY(silent.waitForConnected());
    const OtherStart second(m_environment, m_runtime);
    QTRY_VERIFY(second.hasEnded());
    QVERIFY(second.outcome() == Outcome::Shown);
}

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
