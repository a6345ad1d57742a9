// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/ProgressThrottle.h"

namespace Korvane {

ProgressThrottle::ProgressThrottle(std::chrono::duration<double> interval)
    : m_interval(interval)
{
}

bool ProgressThrottle::shouldEmit() { return shouldEmit(std::chrono::steady_clock::now()); }

bool ProgressThrottle::shouldEmit(std::chrono::steady_clock::time_point now)
{
    if (std::chrono::duration<double>(now - m_last) < m_interval)
        return false;
    m_last = now;
    return true;
}

} // namespace Korvane
