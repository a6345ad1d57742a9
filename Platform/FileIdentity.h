// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace Korvane {

/// Which file a path leads to: two paths with the same volume and number are names of one file.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0; ///< Of the file on its volume.
    std::uint64_t linkCount = 0; ///< How many names the file has on its volume, wherever they lie.

    bool isSameFileAs(const FileIdentity& other) const { return volume == other.volume && number == other.number; }
};

/// The identity of the item at `path` itself, links not followed; nothing when it cannot be asked. Any thread.
std::optional<FileIdentity> identityOfItem(const std::filesystem::path& path);

} // namespace Korvane
