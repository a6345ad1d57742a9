// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ProcessGroup.h"

#include "Platform/Files/Retry.h"

#include <csignal>
#include <cstdlib>
#include <mutex>
#include <set>
#include <sys/wait.h>
#include <thread>

namespace Korvane {
namespace {

/// The groups that live, for the end of the program. Never destroyed: threads may still run children then.
struct LivingGroups {
    std::mutex mutex;
    std::set<int> leaders;
    std::set<int> abandoned; ///< The leaders that nobody waits for; their numbers stay taken until they are buried.
};

void endGroupsAtExit();

LivingGroups& livingGroups()
{
    static LivingGroups* const groups = [] {
        std::atexit(endGroupsAtExit);
        return new LivingGroups;
    }();
    return *groups;
}

bool isGroupAlive(int leader) { return ::kill(-leader, 0) == 0; }

/// Asks what is left of a group to end, and ends it when it has not within `patience`.
void endGroup(int leader, std::chrono::milliseconds patience)
{
    using namespace std::chrono_literals;
    if (::kill(-leader, SIGTERM) != 0)
        return;
    const auto end = std::chrono::steady_clock::now() + patience;
    while (isGroupAlive(leader) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(2ms);
    ::kill(-leader, SIGKILL);
}

void endGroupsAtExit()
{
    auto& groups = livingGroups();
    const std::lock_guard lock(groups.mutex);
    for (const int leader : groups.leaders)
        ::kill(-leader, SIGTERM);
    constexpr std::chrono::milliseconds patience{ 200 };
    for (const int leader : groups.leaders)
        endGroup(leader, patience);
    groups.leaders.clear();
}

/// Takes the status of a leader that has ended; whether it has, or another took it.
bool isBuried(int leader)
{
    return retryInterrupted([&] { return ::waitpid(leader, nullptr, WNOHANG); }) != 0;
}

} // namespace

ProcessGroup::ProcessGroup(int leader)
    : m_leader(leader)
{
    auto& groups = livingGroups();
    const std::lock_guard lock(groups.mutex);
    std::erase_if(groups.abandoned, isBuried);
    groups.leaders.insert(leader);
}

ProcessGroup::~ProcessGroup()
{
    if (m_isTaken)
        return;
    kill();
    const auto end = std::chrono::steady_clock::now() + grace;
    while (!hasLeaderEnded() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    if (hasLeaderEnded())
        status();
    else
        abandon();
}

bool ProcessGroup::hasLeaderEnded() const
{
    if (m_isTaken)
        return true;
    siginfo_t information{};
    const auto id = static_cast<id_t>(m_leader);
    const int error = errorOf([&] { return ::waitid(P_PID, id, &information, WEXITED | WNOHANG | WNOWAIT); });
    return error != 0 || information.si_pid != 0;
}

void ProcessGroup::terminate() const noexcept { ::kill(-m_leader, SIGTERM); }

void ProcessGroup::kill() const noexcept { ::kill(-m_leader, SIGKILL); }

void ProcessGroup::abandon()
{
    m_isTaken = true;
    auto& groups = livingGroups();
    const std::lock_guard lock(groups.mutex);
    groups.leaders.erase(m_leader);
    groups.abandoned.insert(m_leader);
}

std::optional<int> ProcessGroup::status()
{
    if (m_isTaken)
        return m_status;
    int status = 0;
    if (retryInterrupted([&] { return ::waitpid(m_leader, &status, 0); }) == m_leader)
        m_status = status;
    m_isTaken = true;
    // While anything of the group is left, its number is given to nobody else; when nothing is, the call below fails.
    constexpr std::chrono::milliseconds patience{ 200 };
    endGroup(m_leader, patience);
    auto& groups = livingGroups();
    const std::lock_guard lock(groups.mutex);
    groups.leaders.erase(m_leader);
    return m_status;
}

} // namespace Korvane
