# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Jobs of finding duplicates; sourced by compare.sh. Every answer is how many sets there are and how many files in them.
JOBS+=(duplicates duplicates_cold)

# A folder of candidates that is made once and kept for the next run; and, in the order in which they are compared, the
# list of those whose size another has.
made_duplicates() {
    local path=$work/duplicates-$candidates
    if [[ ! -e $path.made ]]; then
        rm -rf "$path"
        "$tools/bench-make-duplicates" "$path" "$candidates"
        find "$path" -type f -printf '%s %p\n' | sort -s -k1,1nr \
            | awk '{ size[NR] = $1; path[NR] = substr($0, length($1) + 2); ++count[$1] }
                   END { for (i = 1; i <= NR; ++i) if (count[size[i]] > 1) print path[i] }' >"$path.list"
        sync -f "$path"
        touch "$path.made"
    fi
    printf '%s\n' "$path"
}

# Sets printed as blocks of paths with an empty line after each.
count_blocks="awk 'NF { ++files; inside = 1 } !NF { sets += inside; inside = 0 } END { print sets + inside, files }'"

duplicates_contestants() { # PATH
    local cli=$build/bin/korvane-cli
    contestant "bare loop" - "$tools/bench-bare-digest" "$1.list"
    contestant korvane "python3 -c 'import json, sys
items = json.load(sys.stdin)[\"items\"]
print(sum(not item[\"selectableByDefault\"] for item in items), len(items))'" env HOME="$1" "$cli" scan duplicates --json
    has rdfind && contestant "rdfind sha256" "awk '/^DUPTYPE_FIRST/ { ++sets } /^DUPTYPE/ { ++files } END { print sets, files }' $work/rdfind" \
        rdfind -checksum sha256 -dryrun true -makeresultsfile true -outputname "$work/rdfind" "$1"
    has rmlint && contestant "rmlint sha256" "awk -F, '/duplicate_file/ { ++files; sets[\$NF] = 1 } END { print length(sets), files }' $work/rmlint" \
        rmlint -a sha256 -T df -o "csv:$work/rmlint" "$1"
    has fdupes && contestant fdupes "$count_blocks" fdupes -r -q "$1"
    has jdupes && contestant "jdupes (no digest)" "$count_blocks" jdupes -r -q "$1"
    return 0
}

# Some of the tools let the system forget what they have read: each starts with everything in memory.
job_duplicates() {
    local tree
    tree=$(made_duplicates)
    begin "Find the sets among $candidates files of 1 MiB and more, warm"
    before="xargs -d '\\n' cat <$tree.list >/dev/null"
    duplicates_contestants "$tree"
    finish
}

job_duplicates_cold() {
    local tree
    [[ -w /proc/sys/vm/drop_caches ]] || { echo "duplicates_cold: only root can drop the caches" >&2; return; }
    tree=$(made_duplicates)
    begin "Find the sets among $candidates files of 1 MiB and more, cold"
    before=$drop_caches
    duplicates_contestants "$tree"
    finish
}
