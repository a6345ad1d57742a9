// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace Korvane {

/// An application that watches how long its main thread is held up by each event, by the clock and by the thread's own
/// processor time. Keys, timers, what other threads have sent, and the making of each picture are events of their own.
class WatchedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        // Other threads handle theirs; and what an event causes on the way is part of it.
        if (receiver->thread() != thread() || m_isHandling)
            return QApplication::notify(receiver, event);
        m_isHandling = true;
        QElapsedTimer wall;
        wall.start();
        const double own = threadMilliseconds();
        const bool isHandled = QApplication::notify(receiver, event);
        m_longest = std::max(m_longest, static_cast<double>(wall.nsecsElapsed()) / 1e6);
        m_longestOwn = std::max(m_longestOwn, threadMilliseconds() - own);
        m_isHandling = false;
        return isHandled;
    }

    /// Forgets what was measured.
    void restart() { m_longest = m_longestOwn = 0; }
    void report(const char* what) const
    {
        std::printf(
            "%-10s longest hold %7.1f ms by the clock, %7.1f ms of the thread's own\n", what, m_longest, m_longestOwn);
    }

private:
    static double threadMilliseconds()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    bool m_isHandling = false;
    double m_longest = 0;
    double m_longestOwn = 0;
};

} // namespace Korvane
