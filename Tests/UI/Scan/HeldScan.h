// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/UI/Scan/ScriptedScanner.h"
#include "UI/Background.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <memory>
#include <utility>
#include <vector>

namespace Korvane {

/// A scan that waits until the test lets it go on, and tells when it has begun.
struct HeldScan {
    HeldScan() = default;
    HeldScan(const HeldScan&) = delete;
    HeldScan& operator=(const HeldScan&) = delete;
    /// Lets go of every scan and waits for it: a test that ends early holds nobody up.
    ~HeldScan()
    {
        mayEnd.release(1000);
        backgroundThreads().waitForDone();
    }

    QSemaphore begun;
    QSemaphore mayEnd;
};

inline std::shared_ptr<const JunkScanner> holding(HeldScan& held, std::vector<ScanItem> items)
{
    return std::make_shared<ScriptedScanner>([&held, items](const ProgressHandler&, const Cancellation&) {
        held.begun.release();
        held.mayEnd.acquire();
        return items;
    });
}

inline std::shared_ptr<const JunkScanner> untilCancelled(HeldScan& held)
{
    return std::make_shared<ScriptedScanner>(
        [&held](const ProgressHandler&, const Cancellation& cancellation) -> std::vector<ScanItem> {
            held.begun.release();
            while (!cancellation.isCancelled())
                QThread::msleep(1);
            held.mayEnd.release();
            throw CancellationError();
        });
}

/// Lets everything that the pool still does end, and what it posted arrive.
inline void drain()
{
    backgroundThreads().waitForDone();
    QCoreApplication::processEvents();
}

} // namespace Korvane
