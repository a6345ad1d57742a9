# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Sourced by the scripts that build: where the libraries lie, and a compiler cache where there is one.

say() { printf '%s\n' "$*" >&2; }

if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}"
fi

if [ "$(uname -s)" = Darwin ]; then
    # Homebrew keeps these three out of the default places.
    for formula in qt icu4c openssl@3; do
        CMAKE_PREFIX_PATH="$(brew --prefix "$formula")${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
    done
    export CMAKE_PREFIX_PATH
fi

# Configures a preset and builds the targets named after it (all of them when none is named).
build() {
    local preset="$1"
    shift
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# True where a window can be shown.
has_display() {
    [ "$(uname -s)" = Darwin ] || [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]
}
