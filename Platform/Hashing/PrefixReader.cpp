// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/PrefixReader.h"

#include "Platform/Walking/ReadingScope.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace Korvane {

PrefixReader::PrefixReader(
    std::size_t files, UpcomingPortions::PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation)
    : m_prefixBytes(prefixBytes)
    , m_cancellation(cancellation)
    , m_upcoming(files, std::move(pathAt), prefixBytes, cancellation)
{
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        // Out of threads: next() reads by itself, and only the gain is lost.
    }
}

PrefixReader::~PrefixReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

const ReadPortion* PrefixReader::next()
{
    if (!m_thread.joinable())
        return readHere();
    std::unique_lock lock(m_mutex);
    if (std::exchange(m_isTaken, false)) {
        m_first = (m_first + 1) % m_portions.size();
        --m_filled;
        m_changed.notify_all();
    }
    m_changed.wait(lock, [this] { return m_filled > 0 || m_hasEnded; });
    m_cancellation.throwIfCancelled();
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (m_filled == 0)
        return nullptr;
    m_isTaken = true;
    return &m_portions[m_first];
}

const ReadPortion* PrefixReader::readHere()
{
    const ReadingScope reading;
    m_upcoming.lookAhead();
    if (!m_upcoming.isEmpty())
        read(m_portions.front());
    else
        m_hasEnded = true;
    m_cancellation.throwIfCancelled();
    return m_hasEnded ? nullptr : &m_portions.front();
}

void PrefixReader::run() noexcept
{
    std::exception_ptr failure;
    try {
        readAll();
    } catch (...) {
        failure = std::current_exception();
    }
    const std::lock_guard lock(m_mutex);
    m_failure = failure;
    m_hasEnded = true;
    m_changed.notify_all();
}

void PrefixReader::readAll()
{
    const ReadingScope reading;
    for (;;) {
        // Before a buffer is waited for: the disk has something to do meanwhile.
        m_upcoming.lookAhead();
        auto* const target = m_upcoming.isEmpty() ? nullptr : waitForFreeBuffer();
        if (!target)
            return;
        read(*target);
        const std::lock_guard lock(m_mutex);
        ++m_filled;
        m_changed.notify_all();
    }
}

ReadPortion* PrefixReader::waitForFreeBuffer()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_filled < m_portions.size() || m_isStopping; });
    if (m_isStopping || m_cancellation.isCancelled())
        return nullptr;
    return &m_portions[(m_first + m_filled) % m_portions.size()];
}

void PrefixReader::read(ReadPortion& target)
{
    const auto& portion = m_upcoming.front();
    if (!target.bytes)
        target.bytes.reset(new unsigned char[capacity()]);
    const auto count = portion.file ? portion.file->read(target.bytes.get(), portion.range, m_cancellation) : -1;
    target.isReadable = count >= 0;
    target.count = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
    target.isLast = portion.isLast || count < portion.range.count;
    if (target.isLast)
        m_upcoming.popWholeFile();
    else
        m_upcoming.pop();
}

std::size_t PrefixReader::capacity() const noexcept
{
    return static_cast<std::size_t>(std::clamp<std::int64_t>(m_prefixBytes, 0, UpcomingPortions::largestPortion));
}

} // namespace Korvane
