// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/PlaceOverlap.h"
#include "Platform/Cancellation.h"

#include <chrono>
#include <filesystem>

namespace Korvane {

/// Tells, in a temporary directory that all users share, what this user left there and nothing uses any more.
///
/// A child is unused when it is the user's own, its newest content is older than a day, and neither it nor anything
/// in it is a socket, a pipe or a device, a small file named as a lock, or a file that a process holds a lock on. What
/// cannot be looked into is taken to be in use.
class SharedTemporaryFolder {
public:
    using Timestamp = std::chrono::sys_time<std::chrono::nanoseconds>;

    /// How long nothing in a child may have changed before it is taken to be left behind.
    static constexpr std::chrono::hours unusedFor{ 24 };
    /// How many files of one child are asked for locks that processes hold: each question costs several system
    /// calls. The rest of a larger child is judged by names, kinds and dates alone.
    static constexpr int lockQuestions = 1000;

    /// `protectedPlaces` are never offered, nor is what contains one.
    SharedTemporaryFolder(PlaceOverlap protectedPlaces, Timestamp now);

    /// Whether `child` may be offered. Throws CancellationError when cancelled.
    bool isUnused(const std::filesystem::path& child, const Cancellation& cancellation) const;

private:
    bool isContentUnused(const std::filesystem::path& folder, const Cancellation& cancellation) const;

    PlaceOverlap m_protectedPlaces;
    Timestamp m_newestUnused; ///< The latest date at which unused content may have changed.
};

} // namespace Korvane
