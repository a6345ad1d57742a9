// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TestProcessRunner.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Korvane {

/// Programs that a test plays: each waits until the test says how it ends, or until it is cancelled. Any thread.
class HeldProcesses final : public ProcessRunner {
public:
    /// Lets one program end so whose path or last argument contains `part`: one that runs, else the next one.
    void end(const std::string& part, ChildResult result)
    {
        const std::lock_guard lock(m_mutex);
        m_endings.emplace_back(part, std::move(result));
        m_changed.notify_all();
    }

    /// Everything that was started, in order.
    std::vector<ChildProcess> started() const
    {
        const std::lock_guard lock(m_mutex);
        return m_started;
    }
    /// How many ended because they were cancelled.
    int cancelled() const
    {
        const std::lock_guard lock(m_mutex);
        return m_cancelled;
    }

    ChildResult run(const ChildProcess& process, const Cancellation& cancellation) const override
    {
        std::unique_lock lock(m_mutex);
        m_started.push_back(process);
        for (;;) {
            const auto ending = std::find_if(m_endings.begin(), m_endings.end(),
                [&](const auto& candidate) { return isMeant(process, candidate.first); });
            if (ending != m_endings.end()) {
                ChildResult result = std::move(ending->second);
                m_endings.erase(ending);
                return result;
            }
            if (cancellation.isCancelled()) {
                ++m_cancelled;
                throw CancellationError();
            }
            m_changed.wait_for(lock, std::chrono::milliseconds(2));
        }
    }

private:
    static bool isMeant(const ChildProcess& process, const std::string& part)
    {
        const auto holds = [&part](const std::string& text) { return text.find(part) != std::string::npos; };
        return holds(process.program.string()) || (!process.arguments.empty() && holds(process.arguments.back()));
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    mutable std::vector<std::pair<std::string, ChildResult>> m_endings;
    mutable std::vector<ChildProcess> m_started;
    mutable int m_cancelled = 0;
};

} // namespace Korvane
