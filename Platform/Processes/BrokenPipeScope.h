// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <csignal>

namespace Korvane {

/// Keeps SIGPIPE from this thread: writing where nobody reads fails with EPIPE and nothing more.
class BrokenPipeScope {
public:
    BrokenPipeScope()
    {
        m_wasPending = isPending();
        const auto set = brokenPipe();
        ::pthread_sigmask(SIG_BLOCK, &set, &m_former);
    }
    ~BrokenPipeScope()
    {
        const auto set = brokenPipe();
        int signal = 0;
        if (!m_wasPending && isPending())
            ::sigwait(&set, &signal);
        ::pthread_sigmask(SIG_SETMASK, &m_former, nullptr);
    }
    BrokenPipeScope(const BrokenPipeScope&) = delete;
    BrokenPipeScope& operator=(const BrokenPipeScope&) = delete;

private:
    static sigset_t brokenPipe()
    {
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, SIGPIPE);
        return set;
    }
    static bool isPending()
    {
        sigset_t pending;
        ::sigpending(&pending);
        return sigismember(&pending, SIGPIPE) == 1;
    }

    sigset_t m_former{};
    bool m_wasPending = false;
};

} // namespace Korvane
