// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace Korvane {

/// Watches how long each turn of the event loop of the main thread takes, by the clock and by the thread's own time.
///
/// With GLib the loop does not tell when it has woken up: QT_NO_GLIB=1 must be set before the application is made.
class MainThreadWatch {
public:
    MainThreadWatch()
    {
        auto* dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, dispatcher, [this] { begin(); });
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher, [this] { end(); });
    }

    void restart()
    {
        m_longest = m_longestOwn = 0;
        begin();
    }
    void report(const char* what)
    {
        end();
        std::printf(
            "%-10s longest turn %7.1f ms by the clock, %7.1f ms of the thread's own\n", what, m_longest, m_longestOwn);
    }

private:
    static double threadMilliseconds()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }
    void begin()
    {
        m_wall.start();
        m_own = threadMilliseconds();
    }
    void end()
    {
        if (!m_wall.isValid())
            return;
        m_longest = std::max(m_longest, static_cast<double>(m_wall.nsecsElapsed()) / 1e6);
        m_longestOwn = std::max(m_longestOwn, threadMilliseconds() - m_own);
    }

    QElapsedTimer m_wall;
    double m_own = 0;
    double m_longest = 0;
    double m_longestOwn = 0;
};

} // namespace Korvane
