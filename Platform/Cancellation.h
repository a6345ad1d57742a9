// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>
#include <exception>
#include <memory>

namespace Korvane {

/// Thrown by work that was asked to stop; it says nothing more than that.
class CancellationError final : public std::exception {
public:
    const char* what() const noexcept override { return "cancelled"; }
};

/// A flag shared between the one who starts work and the one who does it.
///
/// Copies share the flag. Any thread may cancel or ask. A token once cancelled stays so.
class Cancellation {
public:
    /// A token that nobody has cancelled yet.
    Cancellation() : m_cancelled(std::make_shared<std::atomic<bool>>(false)) { }

    void cancel() const noexcept { m_cancelled->store(true, std::memory_order_relaxed); }
    bool isCancelled() const noexcept { return m_cancelled->load(std::memory_order_relaxed); }

    /// Throws CancellationError when the token has been cancelled.
    void throwIfCancelled() const
    {
        if (isCancelled())
            throw CancellationError();
    }

private:
    std::shared_ptr<std::atomic<bool>> m_cancelled;
};

} // namespace Korvane
