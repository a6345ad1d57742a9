// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/PrefixReader.h"

#include <algorithm>
#include <utility>

namespace Korvane {

PrefixReader::PrefixReader(
    std::size_t files, UpcomingPortions::PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation)
    : m_prefixBytes(prefixBytes)
    , m_cancellation(cancellation)
    , m_upcoming(files, std::move(pathAt), prefixBytes, cancellation)
{
}

const ReadPortion* PrefixReader::next()
{
    m_cancellation.throwIfCancelled();
    m_upcoming.lookAhead();
    const bool hasMore = !m_upcoming.isEmpty();
    if (hasMore)
        readFirst();
    m_cancellation.throwIfCancelled();
    return hasMore ? &m_portion : nullptr;
}

void PrefixReader::readFirst()
{
    const auto& upcoming = m_upcoming.front();
    if (!m_portion.bytes)
        m_portion.bytes.reset(new unsigned char[capacity()]);
    const auto count = upcoming.file ? upcoming.file->read(m_portion.bytes.get(), upcoming.range, m_cancellation) : -1;
    m_portion.isReadable = count >= 0;
    m_portion.count = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
    m_portion.isLast = upcoming.isLast || count < upcoming.range.count;
    if (m_portion.isLast)
        m_upcoming.popWholeFile();
    else
        m_upcoming.pop();
}

std::size_t PrefixReader::capacity() const noexcept
{
    return static_cast<std::size_t>(std::clamp<std::int64_t>(m_prefixBytes, 0, UpcomingPortions::largestPortion));
}

} // namespace Korvane
