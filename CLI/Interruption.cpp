// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Interruption.h"

#include <atomic>
#include <csignal>
#include <memory>

namespace Korvane {

namespace {

/// What the handler cancels. Never taken back: a signal may come until the very end.
std::atomic<const Cancellation*> interrupted{ nullptr };

extern "C" void cancelOnSignal(int)
{
    if (const auto* cancellation = interrupted.load())
        cancellation->cancel();
}

void handle(int signal)
{
    struct sigaction action { };
    if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = cancelOnSignal;
    sigemptyset(&action.sa_mask);
    // No restart: a write that waits for its reader is to be given up.
    action.sa_flags = 0;
    sigaction(signal, &action, nullptr);
}

} // namespace

Interruption::Interruption()
{
    // The copy shares the flag and outlives everything, so that a late signal finds it.
    static std::unique_ptr<const Cancellation> shared;
    shared = std::make_unique<const Cancellation>(m_cancellation);
    interrupted.store(shared.get());
    handle(SIGINT);
    handle(SIGTERM);
    handle(SIGHUP);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace Korvane
