#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# From a bare machine to a proof: installs what is missing, builds, runs every test.
#
#   scripts/test.sh           all tests; the QML linter; Platform and Core again under the sanitizers
#   scripts/test.sh --quick   without the sanitizers
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
trap '[ $? -eq 0 ] || say "test.sh: FAILED while $step"' EXIT
begin() { step="$1"; say "== $step"; }

begin "building everything, warnings as errors"
cmake --preset release -DKORVANE_BUILD_TESTS=ON -DKORVANE_WARNINGS_AS_ERRORS=ON
build release

begin "running every test"
ctest --preset release

begin "reading the QML with its linter"
build release all_qmllint

if [ -z "$quick" ]; then
    for sanitizer in asan tsan; do
        begin "running the tests of Platform and Core under $sanitizer"
        cmake --preset "$sanitizer" >/dev/null
        build "$sanitizer" tests-Platform tests-Core
        ctest --preset "$sanitizer" --label-regex '^(Platform|Core)$'
    done
    say "test.sh: everything passed, under the sanitizers too."
else
    say "test.sh: everything passed; the sanitizers were left out (--quick)."
fi
