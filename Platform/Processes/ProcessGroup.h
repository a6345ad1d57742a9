// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <optional>

namespace Korvane {

/// A child process that leads a group of its own, until the end of this object's life, when none of the group is left.
///
/// Whatever groups live when this program exits are ended as well. A leader that cannot be ended is left alone, and
/// buried once it has ended when the next group is made. One thread.
class ProcessGroup {
public:
    /// Takes the id of a child that has been started.
    explicit ProcessGroup(int leader);
    ~ProcessGroup();
    ProcessGroup(const ProcessGroup&) = delete;
    ProcessGroup& operator=(const ProcessGroup&) = delete;

    /// Whether the leader has ended. Its id stays taken until `status` is asked.
    bool hasLeaderEnded() const;
    /// Asks the whole group to end.
    void terminate() const noexcept;
    /// Ends the whole group.
    void kill() const noexcept;
    /// Waits for the leader and gives what waitpid(2) says of it; nothing when another has taken that.
    std::optional<int> status();

    /// Leaves the leader to itself, alive or not.
    void abandon();

    /// How long a group that was asked to end may take for it, and again one that was killed: longer takes only what
    /// cannot be killed, for it waits for a device or runs for an administrator.
    static constexpr std::chrono::milliseconds grace{ 2000 };

private:
    int m_leader;
    bool m_isTaken = false;
    std::optional<int> m_status;
};

} // namespace Korvane
