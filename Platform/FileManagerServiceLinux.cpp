// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileManagerService.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace Korvane {

namespace {

constexpr const char* fileManager = "org.freedesktop.FileManager1";
constexpr int patienceInMilliseconds = 250;

/// Where nothing says that there is a session bus, the client library would start one of its own.
bool hasSessionBus()
{
    if (std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr)
        return true;
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    std::error_code error;
    return folder != nullptr && std::filesystem::is_socket(std::filesystem::path(folder) / "bus", error);
}

bool isNameIn(const QDBusConnection& bus, const char* list)
{
    const auto question
        = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", list);
    const auto answer = bus.call(question, QDBus::Block, patienceInMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage
        && answer.arguments().value(0).toStringList().contains(QString::fromLatin1(fileManager));
}

} // namespace

bool showInFileManagerService(const std::string& uri)
{
    if (!hasSessionBus())
        return false;
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !(isNameIn(bus, "ListNames") || isNameIn(bus, "ListActivatableNames")))
        return false;
    auto request
        = QDBusMessage::createMethodCall(fileManager, "/org/freedesktop/FileManager1", fileManager, "ShowItems");
    request << QStringList{ QString::fromStdString(uri) } << QString();
    return bus.send(request);
}

} // namespace Korvane
