#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Starts the application on a screen of its own and prints what starting and resting cost, as a table.
#
#   Benchmarks/startup.sh [--rounds N] [--rest SECONDS] [--build DIRECTORY]
#
# First frame: from the start of the process to the first change of the screen's memory, which is compared every few
# milliseconds; no window manager draws anything there. Rest: the processor time that the kernel counts (in ticks of
# 10 ms, all threads) from the second second on, and the resident and proportional memory after it.
# Each language is one of its own: texts are loaded before the first frame.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rounds=7 rest=5 build=$here/../build/release
while (($#)); do
    case $1 in
        --rounds) rounds=$2; shift 2 ;;
        --rest) rest=$2; shift 2 ;;
        --build) build=$2; shift 2 ;;
        -h | --help) sed -n '5,12s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"; exit 0 ;;
        *) echo "startup.sh: unknown option $1; see --help" >&2; exit 2 ;;
    esac
done
for tool in Xvfb cmp; do
    command -v "$tool" >/dev/null || { echo "startup.sh: $tool is not installed" >&2; exit 2; }
done
[[ -x $build/bin/korvane ]] || { echo "startup.sh: build first: cmake --preset release && cmake --build --preset release" >&2; exit 2; }

place=$(mktemp -d "${TMPDIR:-/tmp}/korvane-startup.XXXXXX")
server='' application=''
finish() {
    for process in $application $server; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$place"
}
trap finish EXIT

mkdir "$place/screen" "$place/home" "$place/tmp" "$place/run"
chmod 700 "$place/run"
Xvfb -displayfd 4 -screen 0 1440x900x24 -nolisten tcp -noreset -fbdir "$place/screen" 4>"$place/display" 2>/dev/null &
server=$!
for _ in $(seq 200); do
    [[ -s $place/display ]] && break
    sleep 0.05
done
[[ -s $place/display ]] || { echo "startup.sh: the display does not start" >&2; exit 1; }
screen=$place/screen/Xvfb_screen0
display=:$(<"$place/display")

# What a process used so far, in ticks of the kernel, all its threads together.
ticks() {
    local fields
    read -ra fields <<< "$(sed 's/.*) //' "/proc/$1/stat")"
    echo $((fields[11] + fields[12]))
}
memory() { awk -v key="$2:" '$1 == key { printf "%.1f", $2 * 1024 / 1000000 }' "/proc/$1/smaps_rollup"; }
median() { sort -n | awk '{ value[NR] = $1 } END { print value[int((NR + 1) / 2)] }'; }

# Starts the application in a language, and puts the milliseconds to its first frame into $elapsed.
start() {
    cp "$screen" "$place/before"
    local began=${EPOCHREALTIME/./}
    env -u DBUS_SESSION_BUS_ADDRESS -u WAYLAND_DISPLAY HOME="$place/home" TMPDIR="$place/tmp" XDG_RUNTIME_DIR="$place/run" \
        LC_ALL=C.UTF-8 LANGUAGE="$1" DISPLAY="$display" QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software \
        "$build/bin/korvane" >/dev/null 2>&1 &
    application=$!
    while cmp -s "$screen" "$place/before"; do
        kill -0 "$application" || { echo "startup.sh: the application has ended" >&2; exit 1; }
        (( ${EPOCHREALTIME/./} - began < 20000000 )) || { echo "startup.sh: nothing appears" >&2; exit 1; }
    done
    elapsed=$(( (${EPOCHREALTIME/./} - began) / 1000 ))
}

stop() {
    kill "$application"
    wait "$application" 2>/dev/null || true
    application=
    sleep 0.5
}

start en
stop
echo '| Language | First frame, median of '"$rounds"' | At most | Processor time in '"$rest"' s of rest | Resident | Proportional |'
echo '|---|---|---|---|---|---|'
for language in en de ja; do
    times=()
    for _ in $(seq "$rounds"); do
        start "$language"
        times+=("$elapsed")
        [[ ${#times[@]} = "$rounds" ]] || stop
    done
    sleep 2
    before=$(ticks "$application")
    sleep "$rest"
    used=$(($(ticks "$application") - before))
    echo "| $language | $(printf '%s\n' "${times[@]}" | median) ms | $(printf '%s\n' "${times[@]}" | sort -n | tail -1) ms |" \
        "$used ticks | $(memory "$application" Rss) MB | $(memory "$application" Pss) MB |"
    stop
done
