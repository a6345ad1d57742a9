// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TemporaryFolder.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <filesystem>
#include <sys/stat.h>

using namespace Korvane;

namespace {

/// Longer than any start takes on a machine that is busy with other tests.
constexpr int longEnough = 60'000;

/// The program itself, in a home and a session of the test's own.
class Program {
public:
    Program(const TemporaryFolder& folder, const QString& home)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString place = QString::fromStdString(folder.path().native());
        environment.insert(QStringLiteral("HOME"), place + QLatin1Char('/') + home);
        environment.insert(QStringLiteral("TMPDIR"), place);
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), place + QStringLiteral("/run"));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
        for (const char* name : { "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME" })
            environment.remove(QString::fromLatin1(name));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(KORVANE_PROGRAM), QStringList());
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    QProcess& process() { return m_process; }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    void send(int signal) const { ::kill(static_cast<pid_t>(m_process.processId()), signal); }

private:
    QProcess m_process;
};

/// Whether an application of this session can be asked to come to the front.
bool isListening(const TemporaryFolder& folder)
{
    for (const auto& entry : std::filesystem::directory_iterator(folder / "run")) {
        if (entry.is_socket())
            return true;
    }
    return false;
}

/// What the tool for X displays answers; nothing where it fails, as when no window is active.
QString asked(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    tool.waitForFinished(longEnough);
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

} // namespace

/// The program started twice.
class SecondStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void theSecondEndsWell();
    void theSecondBringsTheFirstToTheFront();
    void anotherHomeHasAnApplicationOfItsOwn();
    void oneComesAfterACrash();
    void oneComesAfterTheFirstHasEnded();
    void isToldOfOneThatHangs();

private:
    std::unique_ptr<TemporaryFolder> m_folder;
};

void SecondStartTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    for (const char* name : { "run", "home", "another" })
        QCOMPARE(::mkdir((*m_folder / name).c_str(), 0700), 0);
}

void SecondStartTest::theSecondEndsWell()
{
    Program first(*m_folder, QStringLiteral("home"));
    QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    for (int round = 0; round < 2; ++round) {
        Program second(*m_folder, QStringLiteral("home"));
        QVERIFY(second.process().waitForFinished(longEnough));
        QCOMPARE(second.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.process().exitCode(), 0);
        QVERIFY(first.isRunning());
    }
    first.send(SIGTERM);
    QVERIFY(first.process().waitForFinished(longEnough));
    QCOMPARE(first.process().exitCode(), 0);
}

void SecondStartTest::theSecondBringsTheFirstToTheFront()
{
    if (qgetenv("QT_QPA_PLATFORM") != "xcb")
        QSKIP("Which window is in front is known on a display only");
    const Program first(*m_folder, QStringLiteral("home"));
    QTRY_COMPARE_WITH_TIMEOUT(asked({ "getactivewindow", "getwindowname" }), QStringLiteral("Korvane"), longEnough);
    const QString window = asked({ "getactivewindow" });
    asked({ "getactivewindow", "windowminimize" });
    QTRY_VERIFY_WITH_TIMEOUT(asked({ "search", "--onlyvisible", "--name", "^Korvane$" }).isEmpty(), longEnough);
    Program second(*m_folder, QStringLiteral("home"));
    QVERIFY(second.process().waitForFinished(longEnough));
    QCOMPARE(second.process().exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(asked({ "getactivewindow" }), window, longEnough);
    QCOMPARE(asked({ "search", "--onlyvisible", "--name", "^Korvane$" }), window);
}

void SecondStartTest::anotherHomeHasAnApplicationOfItsOwn()
{
    const Program first(*m_folder, QStringLiteral("home"));
    QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    Program other(*m_folder, QStringLiteral("another"));
    QVERIFY(!other.process().waitForFinished(3000));
    QVERIFY(first.isRunning());
}

void SecondStartTest::oneComesAfterACrash()
{
    {
        const Program first(*m_folder, QStringLiteral("home"));
        QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    }
    QVERIFY(isListening(*m_folder));
    Program second(*m_folder, QStringLiteral("home"));
    QVERIFY(!second.process().waitForFinished(3000));
    Program third(*m_folder, QStringLiteral("home"));
    QVERIFY(third.process().waitForFinished(longEnough));
    QCOMPARE(third.process().exitCode(), 0);
    QVERIFY(second.isRunning());
}

void SecondStartTest::oneComesAfterTheFirstHasEnded()
{
    Program first(*m_folder, QStringLiteral("home"));
    QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    first.send(SIGTERM);
    QVERIFY(first.process().waitForFinished(longEnough));
    QVERIFY(!isListening(*m_folder));
    const Program second(*m_folder, QStringLiteral("home"));
    QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    QVERIFY(second.isRunning());
}

void SecondStartTest::isToldOfOneThatHangs()
{
    Program first(*m_folder, QStringLiteral("home"));
    QTRY_VERIFY_WITH_TIMEOUT(isListening(*m_folder), longEnough);
    first.send(SIGSTOP);
    Program second(*m_folder, QStringLiteral("home"));
    QByteArray told;
    second.process().setReadChannel(QProcess::StandardError);
    while (!told.contains("does not answer") && second.process().waitForReadyRead(longEnough))
        told += second.process().readAllStandardError();
    QVERIFY2(told.contains("korvane: Korvane is already running, but it does not answer."), told.constData());
    // A window of its own tells the same until it is closed.
    QVERIFY(second.isRunning());
    second.send(SIGTERM);
    QVERIFY(second.process().waitForFinished(longEnough));
    QCOMPARE(second.process().exitCode(), 1);
    first.send(SIGCONT);
    Program third(*m_folder, QStringLiteral("home"));
    QVERIFY(third.process().waitForFinished(longEnough));
    QCOMPARE(third.process().exitCode(), 0);
}

QTEST_GUILESS_MAIN(SecondStartTest)
#include "SecondStartTest.moc"
