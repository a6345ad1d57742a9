// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/ReaderDemand.h"

#include "Platform/Walking/DirectoryReader.h"

namespace Korvane {

namespace {

/// Some ten times what it takes to wake a thread.
constexpr std::chrono::microseconds pauseBetweenInvitations{ 100 };

} // namespace

bool ReaderDemand::takeInvitation() noexcept
{
    if (m_readers.load(std::memory_order_relaxed) >= DirectoryReader::readerCount())
        return false;
    const auto time = now();
    auto last = m_lastInvitation.load(std::memory_order_relaxed);
    if (time - last < std::chrono::nanoseconds(pauseBetweenInvitations).count()
        || !m_lastInvitation.compare_exchange_strong(last, time, std::memory_order_relaxed))
        return false;
    m_readers.fetch_add(1, std::memory_order_relaxed);
    return true;
}

std::int64_t ReaderDemand::now() noexcept
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace Korvane
