// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/ChildProcess.h"

#include <memory>

namespace Korvane {

/// Runs other programs for the rules; a test puts another in its place that writes down what it was asked to run.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;

    /// Runs a program to its end, as ChildProcess::run says, with its errors. Any thread but the main one; several at
    /// once do not wait for each other.
    virtual ChildResult run(const ChildProcess& process, const Cancellation& cancellation) const = 0;
};

/// The runner that starts real programs.
std::shared_ptr<ProcessRunner> makeProcessRunner();

} // namespace Korvane
