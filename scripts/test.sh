#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# From a bare machine to a proof: installs what is missing, builds, runs every test.
#
#   scripts/test.sh           all tests, and each benchmark for a moment; the QML linter; Platform and
#                             Core again under the sanitizers; libFuzzer on what reads the files of others
#   scripts/test.sh --quick   without the sanitizers and libFuzzer
set -euo pipefail
cd "$(dirname "$0")/.."

quick=
case "${1:-}" in
    '') ;;
    --quick) quick=yes ;;
    *) echo "test.sh: unknown option $1 (there is only --quick)" >&2; exit 2 ;;
esac

scripts/setup.sh --tests
# shellcheck source=scripts/environment.sh
. scripts/environment.sh

step=
place="$(mktemp -d)"
finish() {
    local status=$?
    rm -rf "$place"
    [ $status -eq 0 ] || say "test.sh: FAILED while $step"
}
trap finish EXIT
begin() { step="$1"; say "== $step"; }

begin "building everything"
# On the way into the project a warning is an error; on a newer compiler than ours it is nobody's fault.
cmake --preset release -DKORVANE_BUILD_TESTS=ON -DKORVANE_BUILD_BENCHMARKS=ON \
    ${CI:+-DKORVANE_WARNINGS_AS_ERRORS=ON}
build release

begin "running every test"
ctest --preset release

# What the superuser may do anyway proves little about permissions; so the same tests run as nobody too.
if [ "$(id -u)" -eq 0 ] && command -v setpriv >/dev/null; then
    begin "running the tests of Platform, Core and CLI again as an ordinary user"
    # A folder that this user may write its log to, and that holds nothing but the way to the tests.
    echo "subdirs(\"$PWD/build/release\")" > "$place/CTestTestfile.cmake"
    chown -R 65534:65534 "$place"
    as_nobody() { setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/nonexistent LC_ALL=C.UTF-8 "$@"; }
    if as_nobody test -x build/release/bin/korvane-cli; then
        as_nobody ctest --test-dir "$place" --label-regex '^(Platform|Core|CLI)$' --no-tests=error \
            --output-on-failure --timeout 300
    else
        say "Left out: other users may not enter $PWD."
    fi
fi

begin "reading the QML with its linter"
build release all_qmllint

if [ -z "$quick" ]; then
    for sanitizer in asan tsan; do
        begin "running the tests of Platform and Core under $sanitizer"
        cmake --preset "$sanitizer" >/dev/null
        build "$sanitizer" tests-Platform tests-Core
        ctest --preset "$sanitizer" --label-regex '^(Platform|Core)$'
    done
    begin "breeding property lists and listings of devices with libFuzzer"
    scripts/fuzz
    say "test.sh: everything passed, under the sanitizers too."
else
    say "test.sh: everything passed; the sanitizers and libFuzzer were left out (--quick)."
fi
