// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/CancelMidway.h"

#include <thread>

namespace Korvane {

namespace {

bool isStopped(const std::function<void(const Cancellation&)>& work, std::chrono::milliseconds after)
{
    const Cancellation cancellation;
    std::thread canceller([&] {
        std::this_thread::sleep_for(after);
        cancellation.cancel();
    });
    bool stopped = false;
    try {
        work(cancellation);
    } catch (const CancellationError&) {
        stopped = true;
    }
    canceller.join();
    return stopped;
}

} // namespace

bool stopsWhenCancelled(const std::function<void(const Cancellation&)>& work, std::chrono::milliseconds after)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        if (isStopped(work, after))
            return true;
    }
    return false;
}

} // namespace Korvane
