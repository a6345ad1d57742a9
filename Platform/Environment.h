// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>

namespace Korvane {

/// Where this user's things lie, read from the process environment once, at start.
///
/// Everything that needs a place asks this record, so that a test, or a demonstration, runs on a
/// temporary folder by filling it in. Paths are as the environment states them, never resolved.
struct Environment {
    std::filesystem::path home;               ///< HOME when absolute, else the password database's entry.
    std::filesystem::path temporaryDirectory; ///< macOS: the per-user folder; elsewhere TMPDIR when absolute, else "/tmp".

    /// XDG base directories of freedesktop.org, version 0.8; a relative value counts as absent.
    std::optional<std::filesystem::path> xdgCacheHome;
    std::optional<std::filesystem::path> xdgConfigHome;
    std::optional<std::filesystem::path> xdgDataHome;

    /// The environment of this process.
    static Environment current();

    /// A home of its own under `folder` ("home" and "tmp" in it), with no XDG overrides; creates both folders.
    static Environment inFolder(const std::filesystem::path& folder);

    std::filesystem::path cacheHome() const;  ///< XDG_CACHE_HOME, else ".cache" in the home folder.
    std::filesystem::path configHome() const; ///< XDG_CONFIG_HOME, else ".config" in the home folder.
    std::filesystem::path dataHome() const;   ///< XDG_DATA_HOME, else ".local/share" in the home folder.
};

} // namespace Korvane
