// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Korvane {

/// Measures many trees in their order, the next one or two while the caller is still busy with the one before.
///
/// Trees of a few thousand files are measured so without a processor waiting at the end of each. Any thread but the
/// main one; one caller at a time.
class MeasureAhead {
public:
    MeasureAhead(std::vector<std::filesystem::path> paths, Cancellation cancellation);
    /// Gives up what is being measured ahead, and waits until it has stopped.
    ~MeasureAhead();
    MeasureAhead(const MeasureAhead&) = delete;
    MeasureAhead& operator=(const MeasureAhead&) = delete;

    /// What totalAllocatedSize() answers for the next path, in bytes. Throws CancellationError when cancelled. To be
    /// called at most once for each path.
    std::int64_t next();

private:
    void run() noexcept;
    std::optional<std::size_t> takeAhead();
    std::int64_t waitFor(std::unique_lock<std::mutex>& lock, std::size_t index);

    const std::vector<std::filesystem::path> m_paths;
    const Cancellation m_cancellation;
    const Cancellation m_stop; ///< For what is measured ahead; the caller's own reaches it through next().
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::optional<std::int64_t>> m_sizes; ///< Of those that were measured ahead.
    std::size_t m_taken = 0; ///< Paths that somebody measures or has measured.
    std::size_t m_given = 0; ///< Paths that the caller has asked for.
    std::exception_ptr m_failure;
    std::thread m_thread; ///< None when the system has none left: the caller measures by itself.
};

} // namespace Korvane
