// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileManagerService.h"

#include "Platform/Workspace.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <array>

/// Read by the thread sanitizer: the distribution's libraries are not built for it, so that it sees the memory which
/// Qt's bus thread shares with the main thread, and not the locks that guard it.
extern "C" const char* __tsan_default_suppressions()
{
    return "race:libQt6DBus.so\nrace:libQt6Core.so\nrace:libdbus-1.so\ndeadlock:libdbus-1.so\nmutex:libdbus-1.so\n";
}

namespace Korvane {
namespace {

/// A file manager of the test's own on a session bus of the test's own.
class ListeningFileManager final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        if (message.interface() != "org.freedesktop.FileManager1" || message.member() != "ShowItems")
            return false;
        shown = message.arguments().value(0).toStringList();
        return true;
    }
    QStringList shown;
};

class FileManagerServiceTest : public testing::Test {
protected:
    void SetUp() override
    {
        daemon.start("dbus-daemon", { "--session", "--nofork", "--print-address=1" });
        ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead()) << "dbus-daemon is needed";
        qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());
    }
    void TearDown() override
    {
        QDBusConnection::disconnectFromBus("file-manager");
        daemon.kill();
        daemon.waitForFinished();
    }

    int count = 1;
    std::string name = "test";
    std::array<char*, 2> arguments{ name.data(), nullptr };
    QCoreApplication application{ count, arguments.data() };
    QProcess daemon;
};

TEST_F(FileManagerServiceTest, ShowsItemsByTheFileManagerOnTheBus)
{
    EXPECT_FALSE(showInFileManagerService("file:///tmp")) << "nobody listens yet";
    auto bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "file-manager");
    ListeningFileManager manager;
    ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/FileManager1", &manager));
    ASSERT_TRUE(bus.registerService("org.freedesktop.FileManager1"));

    const TemporaryFolder folder;
    writeFile(folder / "a,b \xFF", "x");
    EXPECT_TRUE(makeWorkspace(Environment::inFolder(folder.path()))->showInFileManager(folder / "a,b \xFF"));
    QDeadlineTimer deadline(5000);
    while (manager.shown.isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(manager.shown, QStringList(QString::fromStdString("file://" + folder.path().native() + "/a%2Cb%20%FF")));
}

} // namespace
} // namespace Korvane
