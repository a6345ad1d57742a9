// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/TerminationSignals.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::array handled{ SIGTERM, SIGINT, SIGHUP };

// A signal handler may only write: the event loop reads at the other end.
std::array<int, 2> wire{ -1, -1 };
std::array<struct sigaction, handled.size()> former{};

extern "C" void onTerminationSignal(int)
{
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wire[0], &byte, 1);
    errno = error;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, wire.data()) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(wire[1], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = onTerminationSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t index = 0; index < handled.size(); ++index)
        ::sigaction(handled[index], &action, &former[index]);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (std::size_t index = 0; index < handled.size(); ++index)
        ::sigaction(handled[index], &former[index], nullptr);
    m_notifier.reset();
    ::close(wire[0]);
    ::close(wire[1]);
}

} // namespace Korvane
