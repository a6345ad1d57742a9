// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ChildStart.h"

#include "Platform/FileError.h"
#include "Platform/Processes/ChildPipes.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>

namespace Korvane {
namespace {

class SpawnAttributes {
public:
    SpawnAttributes()
    {
        ::posix_spawnattr_init(&m_attributes);
        sigset_t all, none;
        // These two are macros of the platform, so that no "::" may stand before them.
        sigfillset(&all);
        sigemptyset(&none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setpgroup(&m_attributes, 0);
        // POSIX_SPAWN_CLOEXEC_DEFAULT, posix_spawnattr_setflags(3): only what the file actions name is inherited.
        ::posix_spawnattr_setflags(&m_attributes,
            static_cast<short>(
                POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_CLOEXEC_DEFAULT));
    }
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    const posix_spawnattr_t* get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

class SpawnActions {
public:
    SpawnActions() { ::posix_spawn_file_actions_init(&m_actions); }
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    void give(const FileDescriptor& descriptor, int number)
    {
        ::posix_spawn_file_actions_adddup2(&m_actions, descriptor.get(), number);
    }
    const posix_spawn_file_actions_t* get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

} // namespace

StartedChild startChild(const ChildStart& start)
{
    const auto arguments = pointersTo(start.arguments);
    const auto environment = pointersTo(start.environment);
    ChildPipes pipes(start.program);
    SpawnActions actions;
    actions.give(pipes.input.readEnd, 0);
    actions.give(pipes.output.writeEnd, 1);
    actions.give(pipes.errorOutput.writeEnd, 2);
    const SpawnAttributes attributes;
    pid_t child = -1;
    const int error = ::posix_spawn(
        &child, start.program.c_str(), actions.get(), attributes.get(), arguments.data(), environment.data());
    if (error != 0)
        throw FileError(start.program, std::error_code(error, std::generic_category()));
    return std::move(pipes).givenTo(child);
}

} // namespace Korvane
