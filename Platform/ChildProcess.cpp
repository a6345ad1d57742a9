// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ChildProcess.h"

#include "Platform/FileError.h"
#include "Platform/Processes/BrokenPipeScope.h"
#include "Platform/Processes/ChildConversation.h"
#include "Platform/Processes/ChildStart.h"
#include "Platform/Processes/ProcessGroup.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <optional>
#include <sys/wait.h>
#include <thread>

// POSIX leaves its declaration to the program, and macOS has none.
extern char** environ;

namespace Korvane {
namespace {

using Clock = std::chrono::steady_clock;

/// How often a run looks whether it was cancelled.
constexpr std::chrono::milliseconds pace{ 20 };
/// How long the outputs may stay open after the program has ended.
constexpr std::chrono::milliseconds leftoverGrace{ 500 };

bool hasNul(const std::string& text) { return text.find('\0') != std::string::npos; }

/// This process's environment with the variables set over it.
std::vector<std::string> environmentWith(const std::vector<std::pair<std::string, std::string>>& variables)
{
    std::vector<std::string> environment;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string text = *entry;
        const auto isReplaced = [&](const auto& variable) { return text.starts_with(variable.first + '='); };
        if (std::none_of(variables.begin(), variables.end(), isReplaced))
            environment.push_back(text);
    }
    for (const auto& [name, value] : variables)
        environment.push_back(name + '=' + value);
    return environment;
}

ChildStart startOf(const ChildProcess& process)
{
    ChildStart start{ process.program, { process.program.native() }, environmentWith(process.variables) };
    start.arguments.insert(start.arguments.end(), process.arguments.begin(), process.arguments.end());
    const bool isWhole = process.program.is_absolute()
        && std::none_of(start.arguments.begin(), start.arguments.end(), hasNul)
        && std::none_of(start.environment.begin(), start.environment.end(), hasNul);
    if (!isWhole)
        throw FileError(process.program, std::make_error_code(std::errc::invalid_argument));
    return start;
}

/// What is left in the pipes when nobody waits for more: no more than pipes hold.
void drain(ChildConversation& conversation)
{
    constexpr int mostPortions = 32;
    for (int count = 0; count < mostPortions && conversation.exchange({}); ++count) { }
}

/// How the conversation with a program came to its end.
enum class Ending { OfItsOwn, Cancelled, OutOfTime };

/// Talks until the program has ended, of its own accord or because it was ended, and its outputs are closed; or until
/// it was killed in vain.
Ending converse(ChildConversation& conversation, const ProcessGroup& group, const Cancellation& cancellation,
    std::optional<Clock::time_point> limit)
{
    Ending ending = Ending::OfItsOwn;
    std::optional<Clock::time_point> end, lastDeadline;
    std::chrono::milliseconds rest{ 1 };
    while (true) {
        if (!conversation.isOver()) {
            conversation.exchange(pace);
        } else {
            std::this_thread::sleep_for(rest);
            rest = std::min(rest * 2, pace);
        }
        const auto now = Clock::now();
        if (!end && group.hasLeaderEnded())
            end = now + leftoverGrace;
        if (end && (conversation.isOver() || now >= *end)) {
            drain(conversation);
            return ending;
        }
        const bool isOutOfTime = limit && now >= *limit;
        if (!lastDeadline && !end && (isOutOfTime || cancellation.isCancelled())) {
            ending = cancellation.isCancelled() ? Ending::Cancelled : Ending::OutOfTime;
            group.terminate();
            lastDeadline = now + ProcessGroup::grace;
        }
        if (lastDeadline && now >= *lastDeadline)
            group.kill();
        if (lastDeadline && !end && now >= *lastDeadline + ProcessGroup::grace)
            return ending;
    }
}

} // namespace

ChildResult ChildProcess::run(const Cancellation& cancellation) const
{
    cancellation.throwIfCancelled();
    const BrokenPipeScope scope;
    const auto limit = timeLimit ? std::make_optional(Clock::now() + *timeLimit) : std::nullopt;
    auto child = startChild(startOf(*this));
    ProcessGroup group(child.id);
    ChildConversation conversation(child, input, outputLimit);
    const auto ending = converse(conversation, group, cancellation, limit);
    // Only what was killed in vain lives on.
    if (ending != Ending::OfItsOwn && !group.hasLeaderEnded())
        group.abandon();
    const auto status = group.status();
    if (ending == Ending::Cancelled)
        throw CancellationError();
    if (ending == Ending::OutOfTime)
        throw FileError(program, std::make_error_code(std::errc::timed_out));
    if (!status)
        throw FileError(program, std::make_error_code(std::errc::no_child_process));
    ChildResult result;
    conversation.moveOutputsTo(result);
    if (WIFSIGNALED(*status))
        result.signal = WTERMSIG(*status);
    else
        result.exitStatus = WEXITSTATUS(*status);
    return result;
}

} // namespace Korvane
