// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/Interpreters.h"

#include <string>
#include <unordered_set>

namespace Korvane {

namespace {

const std::unordered_set<std::string_view>& interpreters()
{
    static const std::unordered_set<std::string_view> names{
        // Shells, and the programs that are many at once.
        "ash",
        "bash",
        "busybox",
        "coreutils",
        "csh",
        "dash",
        "fish",
        "ksh",
        "mksh",
        "rbash",
        "sh",
        "tcsh",
        "toybox",
        "zsh",
        // Languages and their machines.
        "bun",
        "deno",
        "dotnet",
        "electron",
        "gjs",
        "gjs-console",
        "guile",
        "java",
        "javaw",
        "javaws",
        "julia",
        "lua",
        "luajit",
        "mono",
        "mono-sgen",
        "node",
        "nodejs",
        "nw",
        "perl",
        "php",
        "pypy",
        "python",
        "qml",
        "qmlscene",
        "ruby",
        "seed",
        "tclsh",
        "wine",
        "wine-preloader",
        "wine64",
        "wine64-preloader",
        "wish",
        // Launchers and wrappers.
        "bwrap",
        "dbus-launch",
        "dbus-run-session",
        "dex",
        "distrobox",
        "distrobox-enter",
        "docker",
        "env",
        "exo-open",
        "firejail",
        "flatpak",
        "gamemoderun",
        "gio",
        "gksu",
        "gksudo",
        "gtk-launch",
        "ionice",
        "kdesu",
        "kdesudo",
        "kioclient",
        "kstart",
        "nice",
        "nohup",
        "pkexec",
        "podman",
        "prime-run",
        "proot",
        "setsid",
        "snap",
        "stdbuf",
        "su",
        "sudo",
        "systemd-inhibit",
        "systemd-run",
        "taskset",
        "timeout",
        "toolbox",
        "unshare",
        "x-terminal-emulator",
        "x-www-browser",
        "xdg-open",
        "xdg-terminal-exec",
        "xvfb-run",
    };
    return names;
}

} // namespace

bool isInterpreter(std::string_view programName)
{
    if (interpreters().contains(programName))
        return true;
    const auto last = programName.find_last_not_of("0123456789.-");
    return last != std::string_view::npos && interpreters().contains(programName.substr(0, last + 1));
}

} // namespace Korvane
