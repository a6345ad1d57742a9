// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>

namespace Korvane {

/// Where this user's things lie, read from the process environment once, at start.
///
/// Everything that needs a place asks this record, so that a test, or a demonstration, runs on a
/// temporary folder by filling it in. Paths are bytes as the environment states them, absolute, without trailing
/// slashes, never resolved; whether anything exists there is for the asker to find out.
struct Environment {
    /// HOME when absolute, "/" included; else the password database's entry; else "/nonexistent", where nothing is.
    std::filesystem::path home;

    /// macOS: the per-user folder; elsewhere TMPDIR when absolute, else "/tmp".
    std::filesystem::path temporaryDirectory;

    /// Where applications are installed for all users: the platform's "/Applications", whether it is there or not.
    std::filesystem::path applicationsDirectory = "/Applications";

    /// XDG base directories of freedesktop.org, version 0.8; a relative value counts as absent.
    std::optional<std::filesystem::path> xdgCacheHome;
    std::optional<std::filesystem::path> xdgConfigHome;
    std::optional<std::filesystem::path> xdgDataHome;
    std::optional<std::filesystem::path> xdgStateHome;

    /// The environment of this process. Call it at the start of the program, while there is one thread.
    static Environment current();

    /// A home of its own under `folder` ("home" and "tmp" in it), with no XDG overrides; creates both folders. The
    /// applications of all users are those in "Applications" beside them, which is not created.
    /// Throws std::filesystem::filesystem_error when they cannot be made.
    static Environment inFolder(const std::filesystem::path& folder);

    std::filesystem::path cacheHome() const; ///< XDG_CACHE_HOME, else ".cache" in the home folder.
    std::filesystem::path configHome() const; ///< XDG_CONFIG_HOME, else ".config" in the home folder.
    std::filesystem::path dataHome() const; ///< XDG_DATA_HOME, else ".local/share" in the home folder.
    std::filesystem::path stateHome() const; ///< XDG_STATE_HOME, else ".local/state" in the home folder.
};

} // namespace Korvane
