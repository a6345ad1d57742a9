// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace Korvane {

/// Whether this machine lets a child process mount things that nobody else sees. False says so on standard error, so
/// that a log shows which tests then prove less.
bool canMountPrivately();

/// Runs `work` in a child process (as runInChild does) whose mounts nobody else sees and which end with it.
std::string runWithPrivateMounts(const std::function<std::string()>& work);

/// Gives this process, a child of the test, mounts of its own; without root's rights, in a user namespace in which it
/// is root. Throws std::system_error.
void leaveSharedMounts();

/// Mounts a new file system in memory; `options` as in mount(8), such as "size=64k". Throws std::system_error.
void mountMemory(const std::filesystem::path& folder, const std::string& options = {});

/// Shows `source` (a folder or a file) at `target` as well. Throws std::system_error.
void mountBound(const std::filesystem::path& source, const std::filesystem::path& target);

/// Lets nothing be written any more through the mount at `target`. Throws std::system_error.
void makeMountReadOnly(const std::filesystem::path& target);

} // namespace Korvane
