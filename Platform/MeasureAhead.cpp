// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/MeasureAhead.h"

#include "Platform/TreeMeasure.h"
#include "Platform/Walking/DirectoryReader.h"

#include <chrono>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

constexpr std::size_t mostAhead = 2;

/// How long the caller sleeps at most before it looks whether it was cancelled.
constexpr std::chrono::milliseconds cancellationInterval{ 20 };

} // namespace

MeasureAhead::MeasureAhead(std::vector<std::filesystem::path> paths, Cancellation cancellation)
    : m_paths(std::move(paths))
    , m_cancellation(std::move(cancellation))
    , m_sizes(m_paths.size())
{
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        // Out of threads: only the gain is lost.
    }
}

MeasureAhead::~MeasureAhead()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stop.cancel();
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

std::int64_t MeasureAhead::next()
{
    m_cancellation.throwIfCancelled();
    std::unique_lock lock(m_mutex);
    const auto index = m_given++;
    m_changed.notify_all();
    if (m_taken > index)
        return waitFor(lock, index);
    m_taken = index + 1;
    lock.unlock();
    return totalAllocatedSize(m_paths.at(index), m_cancellation);
}

std::int64_t MeasureAhead::waitFor(std::unique_lock<std::mutex>& lock, std::size_t index)
{
    while (!m_sizes.at(index) && !m_failure) {
        m_changed.wait_for(lock, cancellationInterval);
        m_cancellation.throwIfCancelled();
    }
    if (!m_sizes[index])
        std::rethrow_exception(m_failure);
    return *m_sizes[index];
}

void MeasureAhead::run() noexcept
{
    DirectoryReader::prepareThread();
    try {
        while (const auto index = takeAhead()) {
            const auto size = totalAllocatedSize(m_paths[*index], m_stop);
            const std::lock_guard lock(m_mutex);
            m_sizes[*index] = size;
            m_changed.notify_all();
        }
    } catch (...) {
        const std::lock_guard lock(m_mutex);
        m_failure = std::current_exception();
        m_changed.notify_all();
    }
}

/// The next path to be measured ahead, as soon as it is near enough; nothing at the end.
std::optional<std::size_t> MeasureAhead::takeAhead()
{
    std::unique_lock lock(m_mutex);
    // The first is left to the caller, who is about to ask for it.
    const auto isNear = [this] { return m_given > 0 && m_taken < m_given + mostAhead; };
    m_changed.wait(lock, [&] { return m_stop.isCancelled() || m_taken == m_paths.size() || isNear(); });
    if (m_stop.isCancelled() || m_taken == m_paths.size())
        return std::nullopt;
    return m_taken++;
}

} // namespace Korvane
