// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace Korvane {

/// Runs `work` in a child process (as runInChild does) whose "/" is `folder`: whatever is removed in there by mistake,
/// even "/" itself, it can only be what the test put into that folder. Nothing where the machine does not permit it.
std::optional<std::string> runInPrivateRoot(
    const std::filesystem::path& folder, const std::function<std::string()>& work);

/// What a test says that is left out for want of a private root.
inline constexpr const char* noPrivateRoot = "This machine permits neither private mounts nor changing the root, "
                                             "and no test aims at its real places.";

} // namespace Korvane
