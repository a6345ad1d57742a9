#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# From a bare machine to the main window: installs what is missing, builds, starts Korvane.
#
#   scripts/run.sh          on your own home folder
#   scripts/run.sh --demo   on a throw-away home full of things to clean, removed at the end
set -euo pipefail
cd "$(dirname "$0")/.."

demo=
case "${1:-}" in
    '') ;;
    --demo) demo=yes ;;
    *) echo "run.sh: unknown option $1 (there is only --demo)" >&2; exit 2 ;;
esac

scripts/setup.sh
# shellcheck source=scripts/environment.sh
. scripts/environment.sh

if [ -f build/release/CMakeCache.txt ]; then
    cmake --preset release >/dev/null
else
    say "Building Korvane; the first time takes some minutes."
    cmake --preset release -DKORVANE_BUILD_TESTS=OFF >/dev/null
fi
build release korvane korvane-cli

korvane=build/release/bin/korvane
if [ "$(uname -s)" = Darwin ]; then
    korvane=build/release/bin/Korvane.app/Contents/MacOS/Korvane
fi

# Runs a command whose home folder is the demo's, and everything that is looked up from it.
in_demo_home() {
    env HOME="$home" CFFIXED_USER_HOME="$home" TMPDIR="$home/tmp" \
        XDG_CACHE_HOME="$home/.cache" XDG_CONFIG_HOME="$home/.config" \
        XDG_DATA_HOME="$home/.local/share" XDG_STATE_HOME="$home/.local/state" \
        XAUTHORITY="${XAUTHORITY:-$HOME/.Xauthority}" "$@"
}

prepare=()
if [ -n "$demo" ]; then
    place="$(mktemp -d "${TMPDIR:-/tmp}/korvane-demo.XXXXXX")"
    home="$place/home"
    trap 'rm -rf "$place"; say "The demo home is removed."' EXIT
    scripts/demo-home "$home" || scripts/demo-home "$home" --small
    say "The demo home is $home; it is removed when Korvane ends."
    prepare=(in_demo_home)
fi

if has_display; then
    ${prepare[0]+"${prepare[@]}"} "$korvane"
else
    say "No display here, so no window: scanning System Junk in the terminal instead (this removes nothing)."
    ${prepare[0]+"${prepare[@]}"} build/release/bin/korvane-cli scan systemJunk
fi
