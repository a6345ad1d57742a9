// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// Reads many descriptions that anybody may have written, so that neither a huge one nor many large ones hold up the
/// reader: small ones are read however many there are, large ones until their budget is spent. One thread.
class ReadingBudget {
public:
    /// The largest file that is read, in bytes: descriptions of what starts programs have a few thousand.
    static constexpr std::size_t largestFile = std::size_t{ 1024 } * 1024;
    /// Files up to this size, in bytes, are read without the budget.
    static constexpr std::size_t smallFile = std::size_t{ 16 } * 1024;
    /// How many bytes of larger ones are read.
    static constexpr std::size_t largeFiles = std::size_t{ 32 } * 1024 * 1024;

    ReadingBudget() = default;
    /// One with other bounds than these two: the largest file that is read, and how many bytes of large ones.
    ReadingBudget(std::size_t largest, std::size_t large) noexcept;

    /// The contents of a regular file; nothing of any other, of one that cannot be read, and of one that is too large.
    /// Never waits for a pipe or a device.
    std::optional<std::string> contents(const std::filesystem::path& path);

private:
    std::size_t m_largest = largestFile;
    std::size_t m_left = largeFiles;
};

} // namespace Korvane
