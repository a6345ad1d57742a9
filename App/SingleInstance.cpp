// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr const char* showCommand = "show";
constexpr const char* shownAnswer = "shown\n";
/// In bytes; tokens have a few dozen.
constexpr qint64 longestMessage = 512;

/// Whether the folder is this user's, and nobody else may enter it.
bool isPrivate(const std::filesystem::path& folder)
{
    struct stat status = {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid()
        && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

std::optional<std::filesystem::path> privateFolder(
    const Environment& environment, const std::filesystem::path& runtimeFolder)
{
    if (runtimeFolder.is_absolute() && isPrivate(runtimeFolder))
        return runtimeFolder;
    const auto folder = environment.temporaryDirectory / ("korvane-" + std::to_string(environment.userId));
    // What is there already may be somebody else's.
    if ((::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST) && isPrivate(folder))
        return folder;
    return std::nullopt;
}

std::optional<std::filesystem::path> socketPath(
    const Environment& environment, const std::filesystem::path& runtimeFolder, const QByteArray& session)
{
    const auto folder = privateFolder(environment, runtimeFolder);
    if (!folder)
        return std::nullopt;
    const auto distinction = QByteArray::fromStdString(environment.home.native()) + '\0' + session;
    const QByteArray digest = QCryptographicHash::hash(distinction, QCryptographicHash::Sha256).toHex().left(16);
    auto path = *folder / ("korvane-" + digest.toStdString());
    if (path.native().size() >= sizeof(sockaddr_un::sun_path))
        return std::nullopt;
    return path;
}

std::filesystem::path lockPath(const std::filesystem::path& socket) { return socket.native() + ".lock"; }

/// What of a token can go into a message of one line.
QByteArray presentable(const QByteArray& token)
{
    const bool isPlain = std::all_of(token.begin(), token.end(), [](char c) { return c > ' ' && c < '\x7f'; });
    return isPlain && token.size() < longestMessage / 2 ? token : QByteArray();
}

/// Whether who listens there has come to the front.
bool askToShow(const QString& server, const QByteArray& token, const QDeadlineTimer& deadline)
{
    const auto left = [&] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(server);
    if (!socket.waitForConnected(left()))
        return false;
    socket.write(QByteArray(showCommand) + ' ' + presentable(token) + '\n');
    while (!socket.canReadLine() && !deadline.hasExpired()) {
        if (!socket.waitForReadyRead(left()))
            return false;
    }
    return socket.readLine(longestMessage) == shownAnswer;
}

} // namespace

SingleInstance::SingleInstance(
    const Environment& environment, const std::filesystem::path& runtimeFolder, const QByteArray& session)
    : m_socket(socketPath(environment, runtimeFolder, session))
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SingleInstance::putBack);
}

SingleInstance::Outcome SingleInstance::claim(const QByteArray& activationToken)
{
    const QDeadlineTimer deadline(patience);
    for (;;) {
        const Lock state = lock();
        if (state == Lock::Ours)
            listen();
        if (state != Lock::Theirs)
            return Outcome::First;
        if (askToShow(QFile::decodeName(m_socket->c_str()), activationToken, deadline))
            return Outcome::Shown;
        if (deadline.hasExpired())
            return Outcome::Silent;
        // It is about to listen, or about to be gone.
        QThread::msleep(20);
    }
}

SingleInstance::Lock SingleInstance::lock()
{
    if (!m_socket)
        return Lock::Unknown;
    constexpr mode_t forTheUser = S_IRUSR | S_IWUSR;
    FileDescriptor file(::open(lockPath(*m_socket).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, forTheUser));
    if (!file)
        return Lock::Unknown;
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Lock::Theirs : Lock::Unknown;
    m_lock = std::move(file);
    return Lock::Ours;
}

void SingleInstance::listen()
{
    const QString name = QFile::decodeName(m_socket->c_str());
    // What a crash has left, for who holds the lock is alone.
    QLocalServer::removeServer(name);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(name);
    const QString folder = QFile::decodeName(m_socket->parent_path().c_str());
    // It may be a new one of the same name, while the old one is watched.
    m_watcher.removePath(folder);
    m_watcher.addPath(folder);
}

bool SingleInstance::isLockInPlace() const
{
    struct stat held = {};
    struct stat found = {};
    return ::fstat(m_lock.get(), &held) == 0 && ::lstat(lockPath(*m_socket).c_str(), &found) == 0
        && held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

void SingleInstance::putBack()
{
    const bool isLocked = isLockInPlace();
    struct stat socket = {};
    if (isLocked && ::lstat(m_socket->c_str(), &socket) == 0 && S_ISSOCK(socket.st_mode))
        return;
    const auto folder = m_socket->parent_path();
    if ((::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) || !isPrivate(folder))
        return;
    // Another one that has come meanwhile may have it.
    if (!isLocked && lock() != Lock::Ours)
        return;
    m_server.close();
    listen();
}

void SingleInstance::answer()
{
    while (QLocalSocket* client = m_server.nextPendingConnection()) {
        client->setReadBufferSize(longestMessage);
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        const auto read = [this, client] {
            if (!client->canReadLine()) {
                if (client->bytesAvailable() >= longestMessage)
                    client->abort();
                return;
            }
            const QByteArray line = client->readLine(longestMessage).trimmed();
            if (line == showCommand || line.startsWith(QByteArray(showCommand) + ' ')) {
                Q_EMIT shownAgain(presentable(line.mid(static_cast<qsizetype>(qstrlen(showCommand))).trimmed()));
                client->write(shownAnswer);
            }
            client->disconnectFromServer();
        };
        connect(client, &QLocalSocket::readyRead, client, read);
        // What was there before anybody listened is not announced.
        if (client->bytesAvailable() > 0)
            read();
    }
}

} // namespace Korvane
