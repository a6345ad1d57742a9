// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QFuture>
#include <QPointer>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <memory>
#include <type_traits>
#include <utility>

namespace Korvane {

/// The threads that work for the screens is done on, for as long as the program runs. Not those that Qt shares: it
/// paints gradients and scales pictures on them, and waits for them, so that work which keeps them all busy would hold
/// up every window. Any thread.
inline QThreadPool& backgroundThreads()
{
    static QThreadPool threads;
    return threads;
}

/// Runs `work()` on a thread of the pool and hands its value to `done` on the main thread.
///
/// Main thread. `done` is called at most once, from the event loop and never before this function has returned, and not
/// at all when `receiver` is gone by then. `work` must not throw: it turns what went wrong into a value. See
/// finishBackgroundWork for the end of the program.
template <typename Work, typename Done>
void runInBackground(QThreadPool& threads, QObject* receiver, Work work, Done done)
{
    using Value = std::invoke_result_t<Work>;
    // The receiver itself cannot be the continuation's context: on Qt 6.4 a context that is destroyed before the work
    // ends is asserted on, and used, from the worker's thread. The application object outlives every worker.
    auto deliver = [application = QCoreApplication::instance(), guard = QPointer<QObject>(receiver),
                       done = std::move(done)](Value value) mutable {
        auto arrive = [guard = std::move(guard), done = std::move(done), value = std::move(value)]() mutable {
            if (guard)
                done(std::move(value));
        };
        QMetaObject::invokeMethod(application, std::move(arrive), Qt::QueuedConnection);
    };
    QtConcurrent::run(&threads, std::move(work)).then(std::move(deliver));
}

/// The same on the threads of all screens.
template <typename Work, typename Done> void runInBackground(QObject* receiver, Work work, Done done)
{
    runInBackground(backgroundThreads(), receiver, std::move(work), std::move(done));
}

/// Lets go of a large value away from the main thread; it is freed there if nobody else holds it.
template <typename Value> void releaseInBackground(std::shared_ptr<Value> value)
{
    backgroundThreads().start([value = std::move(value)] {});
}

/// Waits until all background work has ended, and delivers what it brought. For the end of the program alone, when no
/// window is left: what was being removed is removed, and recorded.
inline void finishBackgroundWork()
{
    backgroundThreads().waitForDone();
    QCoreApplication::sendPostedEvents();
}

} // namespace Korvane
