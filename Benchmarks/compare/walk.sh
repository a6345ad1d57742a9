# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Jobs of measuring and walking; sourced by compare.sh. Every answer is the allocated bytes of all regular files.
JOBS+=(measure measure_cold large large_cold caches)

sum_of_blocks="awk '{ total += \$1 } END { printf \"%.0f\\n\", total * 512 }'"

# What du adds for the folders themselves, so that its answer can be compared.
bytes_of_folders() { find "$@" -type d -printf '%b\n' | eval "$sum_of_blocks"; }

drop_caches="sync; echo 3 >/proc/sys/vm/drop_caches"

# bfs walks with several threads from version 3 on.
bfs=(bfs)
if bfs -j8 / -maxdepth 0 >/dev/null 2>&1; then bfs=(bfs -j8); fi

measure_contestants() { # PATH...
    local of_folders
    of_folders=$(bytes_of_folders "$@")
    contestant "bare loop" cat "$tools/bench-bare-walk" "$@"
    contestant korvane cat "$tools/bench-measure" "$@"
    contestant du "awk -v f=$of_folders '{ total += \$1 } END { printf \"%.0f\\n\", total - f }'" du -s -l -B1 "$@"
    contestant find "$sum_of_blocks" find "$@" -type f -printf '%b\n'
    has bfs && contestant "${bfs[*]}" "$sum_of_blocks" "${bfs[@]}" "$@" -type f -printf '%b\n'
    if has gdu && (($# == 1)); then contestant gdu - gdu -n -p -s "$@"; fi
}

job_measure() {
    local tree
    tree=$(made_tree tree "$files" "$folders" 40)
    begin "Measure $files files in $folders folders, warm"
    measure_contestants "$tree"
    finish
}

job_measure_cold() {
    local tree
    [[ -w /proc/sys/vm/drop_caches ]] || { echo "measure_cold: only root can drop the caches" >&2; return; }
    tree=$(made_tree tree "$files" "$folders" 40)
    begin "Measure $files files in $folders folders, cold"
    before=$drop_caches
    measure_contestants "$tree"
    finish
}

# made_home: the tree with one file of 1 MiB in each folder of the first level, of which a search finds those it may.
made_home() {
    local tree folder
    tree=$(made_tree tree "$files" "$folders" 40)
    for folder in "$tree"/*/; do
        [[ -e $folder/large.bin ]] || fallocate -l 1M "$folder/large.bin"
    done
    printf '%s\n' "$tree"
}

large_contestants() { # PATH
    local leaving_out=(-mindepth 1 '(' -name '.*' -o -type d '(' -name node_modules -o -name Library -o -name '*.app' ')' ')' -prune)
    local large=(-type f -size +1023k -printf '%b\n')
    contestant "bare loop" cat "$tools/bench-bare-walk" --home 1048576 "$1"
    contestant korvane cat "$tools/bench-large-files" "$1" 1048576
    contestant find "$sum_of_blocks" find "$1" "${leaving_out[@]}" -o "${large[@]}"
    has bfs && contestant "${bfs[*]}" "$sum_of_blocks" "${bfs[@]}" "$1" "${leaving_out[@]}" -o "${large[@]}"
    has fdfind && contestant fd "$sum_of_blocks" \
        fdfind -I -t f -S +1MiB -E node_modules -E Library -E '*.app' . "$1" -X stat -c %b
    return 0
}

job_large() {
    local tree
    tree=$(made_home)
    begin "Search a home folder for large files, warm"
    large_contestants "$tree"
    finish
}

job_large_cold() {
    local tree
    [[ -w /proc/sys/vm/drop_caches ]] || { echo "large_cold: only root can drop the caches" >&2; return; }
    tree=$(made_home)
    begin "Search a home folder for large files, cold"
    before=$drop_caches
    large_contestants "$tree"
    finish
}

job_caches() {
    local tree
    tree=$(made_tree caches "$((files / 2))" "$((folders / 2))" 400)
    begin "Measure 400 folders one by one, warm"
    measure_contestants "$tree"/*/ "$tree"/.h*/
    finish
}
