#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what building, running and testing Korvane needs; the one place where packages are named.
# Called by run.sh and test.sh; says nothing and asks nobody when everything is there already.
#
#   scripts/setup.sh           what building and running needs
#   scripts/setup.sh --tests   that, and what the tests need
#   scripts/setup.sh --bench   that, and what the benchmarks need
set -euo pipefail

# "a|b" stands for either: the first that the distribution knows is installed.
debian_packages=(
    g++ cmake ninja-build pkg-config file
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools 'libqt6svg6-dev|qt6-svg-dev'
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev libvulkan-dev
    libicu-dev libssl-dev
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-controls
    qml6-module-qtquick-layouts qml6-module-qtquick-shapes qml6-module-qtquick-templates qml6-module-qtquick-window
    qt6-qpa-plugins qt6-translations-l10n libgl1-mesa-dri fonts-inter fonts-dejavu-core
    python3 dbus
)
debian_test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev qml6-module-qttest
    xvfb xauth openbox xdotool trayer imagemagick procps
    libglib2.0-bin gvfs trash-cli erofs-utils libimobiledevice-utils
    desktop-file-utils appstream dpkg-dev
    clang libclang-rt-dev
)
debian_bench_packages=(libbenchmark-dev strace rdfind rmlint fdupes jdupes)

fedora_packages=(
    gcc-c++ cmake ninja-build pkgconf-pkg-config file
    qt6-qtbase-devel qt6-qtdeclarative-devel qt6-qtsvg-devel qt6-qttools-devel qt6-qttranslations
    mesa-libGL-devel vulkan-headers libicu-devel openssl-devel
    mesa-dri-drivers dejavu-sans-fonts rsms-inter-fonts python3 dbus-daemon
)
fedora_test_packages=(
    gtest-devel gmock-devel google-benchmark-devel
    xorg-x11-server-Xvfb xorg-x11-xauth openbox xdotool ImageMagick procps-ng
    glib2 gvfs trash-cli erofs-utils libimobiledevice-utils
    desktop-file-utils appstream
    clang compiler-rt
)
fedora_bench_packages=(google-benchmark-devel strace rdfind rmlint fdupes jdupes)

arch_packages=(
    gcc cmake ninja pkgconf file
    qt6-base qt6-declarative qt6-svg qt6-tools qt6-translations mesa vulkan-headers icu openssl
    inter-font ttf-dejavu python dbus
)
arch_test_packages=(
    gtest benchmark
    xorg-server-xvfb xorg-xauth openbox xdotool imagemagick procps-ng
    glib2 gvfs trash-cli erofs-utils libimobiledevice
    desktop-file-utils appstream
    clang compiler-rt
)
arch_bench_packages=(benchmark strace rdfind rmlint fdupes jdupes)

brew_packages=(cmake ninja pkgconf qt icu4c openssl@3 python3)
brew_test_packages=(googletest google-benchmark)
brew_bench_packages=(google-benchmark rdfind rmlint fdupes jdupes)

say() { printf '%s\n' "setup: $*" >&2; }
fail() { say "$*"; exit 1; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        say "as the superuser: $*"
        sudo "$@"
    else
        fail "this must run as the superuser, and there is no sudo here: $*"
    fi
}

is_installed_debian() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints those of the packages that are missing, one a line; of alternatives, all together.
missing_debian() {
    local package name found
    # One question for all is much faster than one each, and answers the usual case.
    if dpkg-query --show --showformat='${db:Status-Status}\n' "${@//|*/}" 2>/dev/null \
        | awk '$0 != "installed" { bad = 1 } END { exit bad || NR != '$#' }'; then
        return
    fi
    for package in "$@"; do
        found=
        for name in ${package//|/ }; do
            if is_installed_debian "$name"; then
                found=yes
            fi
        done
        [ -n "$found" ] || printf '%s\n' "$package"
    done
}

first_known_debian() {
    local name
    for name in ${1//|/ }; do
        if [ -n "$(apt-cache madison "$name" 2>/dev/null)" ]; then
            printf '%s\n' "$name"
            return
        fi
    done
    printf '%s\n' "${1%%|*}"
}

setup_debian() {
    local missing package chosen=()
    mapfile -t missing < <(missing_debian "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q >&2 || fail "apt-get update failed: is there a network?"
    for package in "${missing[@]}"; do
        chosen+=("$(first_known_debian "$package")")
    done
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${chosen[@]}" >&2 \
        || fail "apt-get could not install them; Debian 12 and Ubuntu 24.04 or later have all of them"
}

setup_fedora() {
    local missing
    mapfile -t missing < <(rpm -q --whatprovides "$@" 2>/dev/null | sed -n 's/^no package provides //p')
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing: ${missing[*]}"
    as_root dnf install -qy --setopt=install_weak_deps=False "${missing[@]}" >&2 || fail "dnf could not install them"
}

setup_arch() {
    local missing
    mapfile -t missing < <(pacman -T "$@" || true)
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing: ${missing[*]}"
    as_root pacman -Sy --needed --noconfirm "${missing[@]}" >&2 || fail "pacman could not install them"
}

setup_macos() {
    local installed package missing=()
    command -v brew >/dev/null || fail "Homebrew is needed to install the libraries: see https://brew.sh"
    xcode-select -p >/dev/null 2>&1 || fail "the command line tools are needed: xcode-select --install"
    installed=" $(brew list --formula -1 | tr '\n' ' ')"
    for package in "$@"; do
        # Homebrew lists some formulae under a versioned name (icu4c@77, python@3.13).
        [[ $installed == *" ${package%3} "* || $installed == *" ${package%3}@"* || $installed == *" $package "* ]] \
            || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing: ${missing[*]}"
    HOMEBREW_NO_AUTO_UPDATE=1 HOMEBREW_NO_INSTALL_CLEANUP=1 brew install -q "${missing[@]}" >&2 \
        || fail "Homebrew could not install them"
}

case "${1:-}" in
    '') more= ;;
    --tests) more=test ;;
    --bench) more=bench ;;
    *) fail "unknown option $1 (there are --tests and --bench)" ;;
esac

choose() {
    local system="$1" packages
    # Names of arrays: bash 3, which macOS ships, has no other way.
    eval "packages=(\"\${${system}_packages[@]}\")"
    [ -z "$more" ] || eval "packages+=(\"\${${system}_${more}_packages[@]}\")"
    "setup_$2" "${packages[@]}"
}

if [ "$(uname -s)" = Darwin ]; then
    choose brew macos
elif command -v apt-get >/dev/null; then
    choose debian debian
elif command -v dnf >/dev/null; then
    choose fedora fedora
elif command -v pacman >/dev/null; then
    choose arch arch
else
    say "unknown system: its packages must be installed by hand (a C++20 compiler, CMake, Ninja, Qt 6.4, ICU, OpenSSL, GoogleTest)"
fi
