// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/EmptyDeviceService.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace Korvane {

namespace {

/// Length of the whole message, version of the protocol, kind and number of the message; in this machine's byte order.
using Header = std::array<std::uint32_t, 4>;

constexpr std::uint32_t propertyListMessage = 8;
constexpr int pace = 20; // Milliseconds.

void check(bool isDone)
{
    if (!isDone)
        throw std::system_error(errno, std::generic_category(), "the service for devices");
}

bool readAll(int connection, void* data, std::size_t size)
{
    return ::recv(connection, data, size, MSG_WAITALL) == static_cast<ssize_t>(size);
}

} // namespace

EmptyDeviceService::EmptyDeviceService(const std::filesystem::path& socket)
    : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    check(m_socket >= 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socket.native().size() >= sizeof address.sun_path)
        throw std::length_error("a path too long for a socket");
    std::memcpy(address.sun_path, socket.c_str(), socket.native().size());
    check(::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    check(::listen(m_socket, 8) == 0);
    m_thread = std::thread([this] { serve(); });
}

EmptyDeviceService::~EmptyDeviceService()
{
    m_isOver = true;
    if (m_thread.joinable())
        m_thread.join();
    ::close(m_socket);
}

void EmptyDeviceService::serve()
{
    while (!m_isOver) {
        pollfd waiting{ m_socket, POLLIN, 0 };
        if (::poll(&waiting, 1, pace) <= 0)
            continue;
        const int connection = ::accept(m_socket, nullptr, nullptr);
        if (connection < 0)
            continue;
        answer(connection);
        ::close(connection);
    }
}

void EmptyDeviceService::answer(int connection)
{
    const std::string list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                             "<key>DeviceList</key><array/></dict></plist>\n";
    Header header{};
    while (readAll(connection, header.data(), sizeof header) && header[0] >= sizeof header) {
        std::string question(header[0] - sizeof header, '\0');
        if (!readAll(connection, question.data(), question.size()))
            return;
        ++m_questions;
        const Header reply{ static_cast<std::uint32_t>(sizeof header + list.size()), 1, propertyListMessage,
            header[3] };
        std::string message(sizeof reply, '\0');
        std::memcpy(message.data(), reply.data(), sizeof reply);
        message += list;
        if (::send(connection, message.data(), message.size(), MSG_NOSIGNAL) < 0)
            return;
    }
}

} // namespace Korvane
