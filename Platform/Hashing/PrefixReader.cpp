// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/PrefixReader.h"

#include <algorithm>
#include <utility>

namespace Korvane {

namespace {

/// Bytes. Little enough to be still in a core's own cache (1 MiB and more today) when it is hashed, and to be waited
/// for when a cancel comes meanwhile: 50 ms of a disk that reads 5 MB in a second.
constexpr std::int64_t largestRead = 262'144;

} // namespace

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
        m_portion.bytes.reset(new unsigned char[static_cast<std::size_t>(capacity())]);
    const FileRange range{ upcoming.range.offset + m_done, std::min(capacity(), upcoming.range.count - m_done) };
    const auto count = upcoming.file ? upcoming.file->read(m_portion.bytes.get(), range) : -1;
    m_done += std::max<std::int64_t>(count, 0);
    const bool isAtEnd = !upcoming.file || count < range.count || range.offset + count == upcoming.file->size();
    m_portion.isReadable = count >= 0;
    m_portion.count = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
    m_portion.isLast = isAtEnd || (upcoming.isLast && m_done == upcoming.range.count);
    if (m_portion.isLast || m_done == upcoming.range.count)
        popFirst();
}

void PrefixReader::popFirst()
{
    m_done = 0;
    if (m_portion.isLast)
        m_upcoming.popWholeFile();
    else
        m_upcoming.pop();
}

std::int64_t PrefixReader::capacity() const noexcept { return std::clamp<std::int64_t>(m_prefixBytes, 0, largestRead); }

} // namespace Korvane
