// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/DirectoryEntry.h"
#include "Platform/DirectoryEnumerator.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace Korvane {

/// Tells from a path whether the consumer passes over what lies below it.
using SkipRule = std::function<bool(const std::filesystem::path&)>;

/// Everything that an entry tells, as text.
std::string describe(const DirectoryEntry& entry);

/// What a walk delivers, entry by entry; the consumer passes over what lies below the folders that `skip` names.
std::vector<std::string> walked(
    const std::filesystem::path& root, const EnumerationOptions& options = {}, const SkipRule& skip = {});

/// The same by a plain recursion over readdir and lstat, one thread, full paths.
std::vector<std::string> walkedPlainly(
    const std::filesystem::path& root, const EnumerationOptions& options = {}, const SkipRule& skip = {});

/// The names alone, in the order of the walk.
std::vector<std::string> namesOf(const std::filesystem::path& root, const EnumerationOptions& options = {});

/// Allocated bytes of all regular files below a folder, by plain recursion.
std::int64_t allocatedPlainly(const std::filesystem::path& root);

} // namespace Korvane
