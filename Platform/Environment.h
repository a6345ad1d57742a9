// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

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

    /// What runs scripts with an administrator's rights after asking for the password; macOS has it.
    std::filesystem::path scriptInterpreter = "/usr/bin/osascript";
    /// What starts background items and stops them; macOS has it.
    std::filesystem::path serviceManager = "/bin/launchctl";
    /// Where background items of all users lie: the platform's "/Library", whether it is there or not.
    std::filesystem::path machineLibrary = "/Library";
    /// Where the host's own programs for maintenance are looked for, the first folder first; only an administrator may
    /// write there, for some are run with an administrator's rights.
    std::vector<std::filesystem::path> programFolders = { "/usr/bin", "/bin", "/usr/sbin", "/sbin" };
    /// Where the tools that talk to iPhones and iPads are looked for, the first folder first, and nowhere else. Behind
    /// the two of a package manager comes, on Linux, the system's own.
    std::vector<std::filesystem::path> deviceToolFolders = { "/opt/homebrew/bin", "/usr/local/bin" };
    /// What tells this system's name, the first that is there (os-release(5) of systemd); macOS has none.
    std::vector<std::filesystem::path> systemReleaseFiles = { "/etc/os-release", "/usr/lib/os-release" };
    /// XDG_CONFIG_DIRS without its relative entries; "/etc/xdg" when it names none. The first counts most.
    std::vector<std::filesystem::path> xdgConfigDirs = { "/etc/xdg" };
    /// The desktops that run, XDG_CURRENT_DESKTOP with colons between them; none when it is not set.
    std::vector<std::string> currentDesktops;
    /// The number of this user.
    unsigned int userId = 0;

    /// XDG base directories of freedesktop.org, version 0.8; a relative value counts as absent.
    std::optional<std::filesystem::path> xdgCacheHome;
    std::optional<std::filesystem::path> xdgConfigHome;
    std::optional<std::filesystem::path> xdgDataHome;
    std::optional<std::filesystem::path> xdgStateHome;

    /// The environment of this process. Call it at the start of the program, while there is one thread.
    static Environment current();

    /// A home of its own under `folder` ("home" and "tmp" in it), with no XDG overrides; creates both folders. The
    /// applications of all users are those in "Applications" beside them, their background items those in "Library" and
    /// "xdg"; the programs of this system are those in "bin", "osascript" and "launchctl" among them; the tools for
    /// devices are looked for in "homebrew/bin", "local/bin" and, on Linux, "bin". None of these is created.
    /// Throws std::filesystem::filesystem_error when they cannot be made.
    static Environment inFolder(const std::filesystem::path& folder);

    std::filesystem::path cacheHome() const; ///< XDG_CACHE_HOME, else ".cache" in the home folder.
    std::filesystem::path configHome() const; ///< XDG_CONFIG_HOME, else ".config" in the home folder.
    std::filesystem::path dataHome() const; ///< XDG_DATA_HOME, else ".local/share" in the home folder.
    std::filesystem::path stateHome() const; ///< XDG_STATE_HOME, else ".local/state" in the home folder.

    /// Where what is downloaded goes: "Downloads" in the home folder, unless, on Linux, the user's choice in
    /// "user-dirs.dirs" (xdg-user-dirs) names another folder. Reads one small file: any thread.
    std::filesystem::path downloads() const;

private:
    /// The folders of the system's own tools for devices, as they lie below `root`.
    static std::vector<std::filesystem::path> systemDeviceToolFolders(const std::filesystem::path& root);
};

} // namespace Korvane
