// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ProgressThrottle.h"
#include "Core/Scanning/ScanProgress.h"

#include <cstddef>
#include <string>

namespace Korvane {

/// One line on standard error that is written over and over while work goes on, and wiped at the end.
///
/// Nothing is written when standard error is no terminal.
class TerminalProgress {
public:
    TerminalProgress();
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    /// Shows how far a scan has come; at most ten times a second.
    void show(const ScanProgress& progress);
    /// Shows which item is being cleaned; at most ten times a second.
    void showCleaning(std::size_t number, std::size_t count, const std::string& path);
    /// Shows at which of so many steps a work is; at most ten times a second.
    void showStep(const std::string& work, std::size_t number, std::size_t count, const std::string& name);

    /// Takes the line away.
    void wipe();

private:
    void rewrite(const std::string& line);

    bool m_isTerminal;
    ProgressThrottle m_throttle;
    std::size_t m_shownColumns = 0;
};

} // namespace Korvane
