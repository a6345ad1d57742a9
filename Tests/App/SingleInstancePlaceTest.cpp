// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/SingleInstance.h"
#include "Tests/App/OtherStart.h"
#include "Tests/Support/TemporaryFolder.h"

#include <QSignalSpy>
#include <QTest>

#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace Korvane;

namespace {

using Outcome = SingleInstance::Outcome;

} // namespace

/// Where the lock and the socket of the first start lie, and what may happen to them there.
class SingleInstancePlaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void isFoundAgainAfterACleaner_data();
    void isFoundAgainAfterACleaner();
    void leavesAloneWhatAnotherHasTaken();
    void followsNoLinkAtItsPlace_data();
    void followsNoLinkAtItsPlace();
    void takesThePlaceOfWhatIsNoSocket();
    void usesNoFolderOfSomebodyElse();
    void onlyThisUserMayAsk();
    void usesNoFolderThatOthersMayEnter();
    void usesNoFolderThatIsALink();
    void goesOnWhereThereIsNoPlace();

private:
    std::unique_ptr<TemporaryFolder> m_folder;
    Environment m_environment;
    std::filesystem::path m_runtime;
};

void SingleInstancePlaceTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_environment = Environment::inFolder(m_folder->path());
    m_runtime = *m_folder / "run";
    QCOMPARE(::mkdir(m_runtime.c_str(), 0700), 0);
}

void SingleInstancePlaceTest::isFoundAgainAfterACleaner_data()
{
    QTest::addColumn<bool>("isTemporary");
    QTest::addColumn<QStringList>("cleaned");
    for (const bool isTemporary : { true, false }) {
        const char* place = isTemporary ? "temporary folder" : "runtime folder";
        QTest::addRow("%s, socket", place) << isTemporary << QStringList{ QString() };
        QTest::addRow("%s, lock", place) << isTemporary << QStringList{ QStringLiteral(".lock") };
        QTest::addRow("%s, both", place) << isTemporary << QStringList{ QString(), QStringLiteral(".lock") };
    }
    QTest::newRow("the folder too") << true << QStringList();
}

void SingleInstancePlaceTest::isFoundAgainAfterACleaner()
{
    QFETCH(const bool, isTemporary);
    QFETCH(const QStringList, cleaned);
    if (isTemporary)
        m_runtime.clear();
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QSignalSpy shown(&first, &SingleInstance::shownAgain);
    const std::filesystem::path lock = first.socket()->native() + ".lock";
    // Once put back, it is watched as before.
    for (int count = 1; count <= 2; ++count) {
        for (const QString& ending : cleaned)
            QVERIFY(std::filesystem::remove(first.socket()->native() + ending.toStdString()));
        if (cleaned.isEmpty())
            std::filesystem::remove_all(first.socket()->parent_path());
        QTRY_VERIFY(std::filesystem::is_socket(*first.socket()) && std::filesystem::exists(lock));
        struct stat status = {};
        QCOMPARE(::lstat(first.socket()->parent_path().c_str(), &status), 0);
        QCOMPARE(status.st_mode & 0077, mode_t{ 0 });
        const OtherStart second(m_environment, m_runtime);
        QTRY_VERIFY(second.hasEnded());
        QVERIFY(second.outcome() == Outcome::Shown);
        QCOMPARE(shown.count(), count);
    }
}

void SingleInstancePlaceTest::leavesAloneWhatAnotherHasTaken()
{
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    QVERIFY(std::filesystem::remove(first.socket()->native() + ".lock"));
    SingleInstance second(m_environment, m_runtime, "display");
    QVERIFY(second.claim() == Outcome::First);
    QSignalSpy shownFirst(&first, &SingleInstance::shownAgain);
    QSignalSpy shownSecond(&second, &SingleInstance::shownAgain);
    for (int count = 1; count <= 2; ++count) {
        const OtherStart third(m_environment, m_runtime);
        QTRY_VERIFY(third.hasEnded());
        QVERIFY(third.outcome() == Outcome::Shown);
        QCOMPARE(shownSecond.count(), count);
    }
    QCOMPARE(shownFirst.count(), 0);
}

void SingleInstancePlaceTest::followsNoLinkAtItsPlace_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<bool>("listens");
    QTest::newRow("socket") << QString() << true;
    QTest::newRow("lock") << QStringLiteral(".lock") << false;
}

void SingleInstancePlaceTest::followsNoLinkAtItsPlace()
{
    QFETCH(const QString, ending);
    QFETCH(const bool, listens);
    SingleInstance first(m_environment, m_runtime, "display");
    writeFile(*m_folder / "precious", "kept");
    const std::filesystem::path place = first.socket()->native() + ending.toStdString();
    std::filesystem::create_symlink(*m_folder / "precious", place);
    QVERIFY(first.claim() == Outcome::First);
    QCOMPARE(QByteArray::fromStdString(readFile(*m_folder / "precious")), QByteArray("kept"));
    QCOMPARE(std::filesystem::is_socket(std::filesystem::symlink_status(*first.socket())), listens);
}

void SingleInstancePlaceTest::takesThePlaceOfWhatIsNoSocket()
{
    SingleInstance first(m_environment, m_runtime, "display");
    writeFile(*first.socket(), "an ordinary file");
    QVERIFY(first.claim() == Outcome::First);
    QVERIFY(std::filesystem::is_socket(*first.socket()));
}

void SingleInstancePlaceTest::usesNoFolderOfSomebodyElse()
{
    if (::geteuid() != 0)
        QSKIP("Only an administrator can give a folder away");
    constexpr uid_t somebody = 65'534;
    QCOMPARE(::chown(m_runtime.c_str(), somebody, somebody), 0);
    const SingleInstance inTemporaryFolder(m_environment, m_runtime, "display");
    const auto folder = inTemporaryFolder.socket()->parent_path();
    QVERIFY(folder.parent_path() == m_environment.temporaryDirectory);
    QCOMPARE(::chown(folder.c_str(), somebody, somebody), 0);
    SingleInstance nowhere(m_environment, m_runtime, "display");
    QVERIFY(!nowhere.socket());
    QVERIFY(nowhere.claim() == Outcome::First);
}

void SingleInstancePlaceTest::onlyThisUserMayAsk()
{
    m_runtime.clear();
    SingleInstance first(m_environment, m_runtime, "display");
    QVERIFY(first.claim() == Outcome::First);
    struct stat status = {};
    QCOMPARE(::lstat(first.socket()->c_str(), &status), 0);
    QCOMPARE(status.st_mode & 0077, mode_t{ 0 });
    QCOMPARE(::lstat(first.socket()->parent_path().c_str(), &status), 0);
    QCOMPARE(status.st_mode & 0077, mode_t{ 0 });
    QVERIFY(first.socket()->parent_path().parent_path() == m_environment.temporaryDirectory);
}

void SingleInstancePlaceTest::usesNoFolderThatOthersMayEnter()
{
    QCOMPARE(::chmod(m_runtime.c_str(), 0755), 0);
    const SingleInstance inTemporaryFolder(m_environment, m_runtime, "display");
    const auto folder = inTemporaryFolder.socket()->parent_path();
    QVERIFY(folder.parent_path() == m_environment.temporaryDirectory);
    QCOMPARE(::chmod(folder.c_str(), 0755), 0);
    SingleInstance nowhere(m_environment, m_runtime, "display");
    QVERIFY(!nowhere.socket());
    QVERIFY(nowhere.claim() == Outcome::First);
}

void SingleInstancePlaceTest::usesNoFolderThatIsALink()
{
    const auto target = m_runtime;
    m_runtime = *m_folder / "link";
    std::filesystem::create_directory_symlink(target, m_runtime);
    const SingleInstance instance(m_environment, m_runtime, "display");
    QVERIFY(instance.socket()->parent_path().parent_path() == m_environment.temporaryDirectory);
}

void SingleInstancePlaceTest::goesOnWhereThereIsNoPlace()
{
    m_runtime = *m_folder / std::string(120, 'x');
    QCOMPARE(::mkdir(m_runtime.c_str(), 0700), 0);
    SingleInstance tooLong(m_environment, m_runtime, "display");
    QVERIFY(!tooLong.socket());
    QVERIFY(tooLong.claim() == Outcome::First);
    m_runtime.clear();
    m_environment.temporaryDirectory = *m_folder / "missing";
    SingleInstance missing(m_environment, m_runtime, "display");
    QVERIFY(!missing.socket());
    QVERIFY(missing.claim() == Outcome::First);
}

QTEST_GUILESS_MAIN(SingleInstancePlaceTest)
#include "SingleInstancePlaceTest.moc"
