#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs Korvane and other tools on the same trees, in turn, in one run, and prints medians and ratios.
#
#   Benchmarks/compare.sh [--rounds N] [--files N] [--folders N] [--candidates N] [--work DIRECTORY] [--build DIRECTORY] [JOB...]
#
# Each file in Benchmarks/compare/ adds jobs: a function job_NAME and the line: JOBS+=(NAME). Inside a job:
#   begin TITLE                        a new table; the first contestant added is what the others are divided by
#   contestant NAME FILTER COMMAND...  FILTER turns the command's output into its answer ("-": gives no answer)
#   before='SHELL TEXT'                run before each timed run, untimed ($contestant names whose turn it is)
#   finish                             runs all in turn, ROUNDS times, compares the answers, prints the table
# Wall time, user plus system time and peak resident memory are those of the command itself.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rounds=7 files=500000 folders=40000 candidates=20000 work=${TMPDIR:-/tmp}/korvane-compare build=$here/../build/bench
JOBS=() wanted=()

while (($#)); do
    case $1 in
        --rounds) rounds=$2; shift 2 ;;
        --files) files=$2; shift 2 ;;
        --folders) folders=$2; shift 2 ;;
        --candidates) candidates=$2; shift 2 ;;
        --work) work=$2; shift 2 ;;
        --build) build=$2; shift 2 ;;
        -h | --help) sed -n '5,16s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"; exit 0 ;;
        -*) echo "compare.sh: unknown option $1; see --help" >&2; exit 2 ;;
        *) wanted+=("$1"); shift ;;
    esac
done
tools=$build/benchmarks
[[ -x $tools/bench-run ]] || { echo "compare.sh: build first: cmake --preset bench && cmake --build --preset bench" >&2; exit 2; }
mkdir -p "$work"

has() { command -v "$1" >/dev/null; }

# made_tree NAME FILES FOLDERS TOPS: the path of a tree that is made once and kept for the next run.
made_tree() {
    local path=$work/$1-$2-$3-$4
    if [[ ! -e $path.made ]]; then
        rm -rf "$path"
        "$tools/bench-make-tree" "$path" "$2" "$3" "$4"
        sync -f "$path"
        touch "$path.made"
    fi
    printf '%s\n' "$path"
}

begin() {
    title=$1 before=:
    names=() filters=() commands=()
}

contestant() {
    names+=("$1") filters+=("$2")
    shift 2
    commands+=("$(printf '%q ' "$@")")
}

run_once() { # INDEX FIGURES
    local contestant=${names[$1]} answer
    eval "$before"
    eval "\"\$tools/bench-run\" \"\$2\" \"\$work/output\" ${commands[$1]}" || echo "  ($contestant ended with an error)" >&2
    [[ ${filters[$1]} == - ]] && return
    answer=$(eval "${filters[$1]}" <"$work/output")
    [[ -n ${expected:-} ]] || expected=$answer
    [[ $answer == "$expected" ]] || { echo "compare.sh: $contestant answers $answer, not $expected" >&2; exit 1; }
}

median() { sort -g | awk '{ v[NR] = $1 } END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

finish() {
    local figures index round expected='' wall processor memory base_wall='' base_processor=''
    figures=$(mktemp -d "$work/figures.XXXXXX")
    for ((index = 0; index < ${#names[@]}; ++index)); do run_once "$index" /dev/null; done # Untimed: warms up.
    for ((round = 0; round < rounds; ++round)); do
        for ((index = 0; index < ${#names[@]}; ++index)); do run_once "$index" "$figures/$index"; done
    done
    printf '\n%s (medians of %d)\n%-28s %10s %7s %10s %7s %10s\n' "$title" "$rounds" "" "wall s" "ratio" "user+sys" "ratio" "peak MB"
    for ((index = 0; index < ${#names[@]}; ++index)); do
        wall=$(cut -d' ' -f1 "$figures/$index" | median)
        processor=$(cut -d' ' -f2 "$figures/$index" | median)
        memory=$(cut -d' ' -f3 "$figures/$index" | median)
        base_wall=${base_wall:-$wall} base_processor=${base_processor:-$processor}
        awk -v n="${names[index]}" -v w="$wall" -v bw="$base_wall" -v p="$processor" -v bp="$base_processor" -v m="$memory" \
            'BEGIN { printf "%-28s %10.3f %7.2f %10.3f %7.2f %10.1f\n", n, w, bw ? w / bw : 0, p, bp ? p / bp : 0, m / 1024 }'
    done
    rm -rf "$figures"
}

for script in "$here"/compare/*.sh; do
    # shellcheck source=/dev/null
    source "$script"
done
((${#wanted[@]})) || wanted=("${JOBS[@]}")
for job in "${wanted[@]}"; do
    [[ " ${JOBS[*]} " == *" $job "* ]] || { echo "compare.sh: no job $job; there are: ${JOBS[*]}" >&2; exit 2; }
    "job_$job"
done
