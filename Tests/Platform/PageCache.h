// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>

namespace Korvane {

/// How many pages so many bytes take.
std::size_t pagesOf(std::size_t bytes);

/// How many pages of a file the system holds in memory; to be asked by its owner.
std::size_t pagesInMemory(const std::filesystem::path& file);

/// Writes a file out to its disk and lets the system forget what it holds of it.
void forget(const std::filesystem::path& file);

/// Whether files at this place, where one is made, can be forgotten.
bool canBeForgotten(const std::filesystem::path& probe);

/// Reads a stretch of a file, and nothing else of it, into the system's memory.
void readInto(const std::filesystem::path& file, std::size_t offset, std::size_t count);

} // namespace Korvane
