// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ProcessRunner.h"

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Korvane {

/// A runner that starts nothing: it writes down what it was asked to run, and answers as a test says. Any thread; the
/// answer is set before it is asked.
class TestProcessRunner final : public ProcessRunner {
public:
    /// What each program does; without one it exits with status 0.
    std::function<ChildResult(const ChildProcess&, const Cancellation&)> answer;

    /// Every program that was asked for, followed by its arguments.
    std::vector<std::vector<std::string>> calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

    ChildResult run(const ChildProcess& process, const Cancellation& cancellation) const override
    {
        std::vector<std::string> call{ process.program.native() };
        call.insert(call.end(), process.arguments.begin(), process.arguments.end());
        {
            const std::lock_guard lock(m_mutex);
            m_calls.push_back(std::move(call));
        }
        return answer ? answer(process, cancellation) : exited(0);
    }

    /// The result of a program that exited with this status after it wrote this to its standard error.
    static ChildResult exited(int status, std::string errorOutput = {})
    {
        ChildResult result;
        result.exitStatus = status;
        result.errorOutput.text = std::move(errorOutput);
        return result;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::vector<std::vector<std::string>> m_calls;
};

} // namespace Korvane
