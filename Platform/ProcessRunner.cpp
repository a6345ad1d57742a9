// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ProcessRunner.h"

namespace Korvane {

namespace {

class ChildProcessRunner final : public ProcessRunner {
public:
    ChildResult run(const ChildProcess& process, const Cancellation& cancellation) const override
    {
        return process.run(cancellation);
    }
};

} // namespace

std::shared_ptr<ProcessRunner> makeProcessRunner() { return std::make_shared<ChildProcessRunner>(); }

} // namespace Korvane
