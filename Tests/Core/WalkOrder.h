// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <vector>

namespace Korvane {

/// An entry that scanners meet, and the folder that lists it.
struct WalkedEntry {
    std::filesystem::path path;
    std::filesystem::path parent;
};

/// What scanners meet below a root, less the library of the home, in their order: each folder as the system lists it,
/// what it holds right after it. By a plain recursion of its own.
std::vector<WalkedEntry> walkOrder(const std::filesystem::path& root, const std::filesystem::path& library);

/// The same below a home.
std::vector<WalkedEntry> walkOrder(const std::filesystem::path& home);

} // namespace Korvane
