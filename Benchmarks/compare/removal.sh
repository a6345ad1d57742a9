# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Jobs of removing and of moving to the Trash; sourced by compare.sh. Every run gets a tree of its own, made untimed.
JOBS+=(remove_memory remove_ext4 remove_disk remove_flat trash_memory trash_disk)

removal_files=200000 removal_folders=9400 trash_items=10000

remove_contestants() { # PATH
    contestant "rm -rf" - rm -rf "$1"
    contestant korvane - "$tools/bench-remove" "$1"
    contestant "find -delete" - find "$1" -delete
    contestant "bare loop" - "$tools/bench-bare-remove" "$1"
}

job_remove_memory() {
    local place=/dev/shm
    [[ -d $place && -w $place ]] || { echo "remove_memory: needs $place, a file system in memory" >&2; return; }
    place=$(mktemp -d "$place/korvane-compare.XXXXXX")
    begin "Remove $removal_files files in $removal_folders folders, in memory"
    before="rm -rf $place/tree && \$tools/bench-make-tree $place/tree $removal_files $removal_folders 40"
    remove_contestants "$place/tree"
    finish
    rm -rf "$place"
}

# A real file system with its journal, on a device whose speed is the memory's: what the disk adds is left out.
job_remove_ext4() {
    local image place
    ((EUID == 0)) || { echo "remove_ext4: only root can mount an image" >&2; return; }
    image=$(mktemp /dev/shm/korvane-compare.XXXXXX) place=$(mktemp -d "$work/ext4.XXXXXX")
    truncate -s 6G "$image"
    mkfs.ext4 -q -N 400000 -E lazy_itable_init=0 "$image"
    mount -o loop "$image" "$place"
    begin "Remove $removal_files files in $removal_folders folders, ext4 on a device in memory"
    before="rm -rf $place/tree && \$tools/bench-make-tree $place/tree $removal_files $removal_folders 40 && sync -f $place"
    before+=" && find $place/tree -size +0 >/dev/null"
    remove_contestants "$place/tree"
    finish
    umount "$place"
    rm -rf "$image" "$place"
}

job_remove_disk() {
    local place
    place=$(mktemp -d "$work/remove.XXXXXX")
    begin "Remove $removal_files files in $removal_folders folders, on disk, warm"
    before="rm -rf $place/tree && \$tools/bench-make-tree $place/tree $removal_files $removal_folders 40 && sync -f $place"
    before+=" && find $place/tree -size +0 >/dev/null"
    remove_contestants "$place/tree"
    finish
    rm -rf "$place"
}

job_remove_flat() {
    local place
    place=$(mktemp -d "$work/remove.XXXXXX")
    begin "Remove $removal_files files in one folder, on disk, warm"
    before="rm -rf $place/tree && \$tools/bench-make-tree $place/tree $removal_files 1 1 && sync -f $place"
    remove_contestants "$place/tree"
    finish
    rm -rf "$place"
}

# Each gets a home folder with files to trash, and is one process; the desktop's tool finds its Trash by HOME.
trash_contestants() { # PLACE
    has gio && contestant "gio trash" - env HOME="$1/home" XDG_DATA_HOME="$1/home/.local/share" \
        xargs -0 -s 1900000 -a "$1/list" gio trash
    contestant korvane - "$tools/bench-trash" "$1/home" "$1/list"
    contestant "bare loop, synced" - "$tools/bench-bare-trash" "$1/home" "$1/home/items" sync
    contestant "bare loop" - "$tools/bench-bare-trash" "$1/home" "$1/home/items"
}

compare_trash() { # TITLE PLACE
    begin "$1"
    before="rm -rf $2/home && mkdir -p $2/home && \$tools/bench-make-tree $2/home/items $trash_items 1 1"
    before+=" && mv $2/home/items/Library/* $2/home/items && rmdir $2/home/items/Library"
    before+=" && find $2/home/items -mindepth 1 -print0 >$2/list && sync -f $2"
    trash_contestants "$2"
    finish
    rm -rf "$2"
}

job_trash_memory() {
    [[ -w /dev/shm ]] || { echo "trash_memory: needs /dev/shm, a file system in memory" >&2; return; }
    compare_trash "Move $trash_items files to the Trash, in memory" "$(mktemp -d /dev/shm/korvane-compare.XXXXXX)"
}

job_trash_disk() { compare_trash "Move $trash_items files to the Trash, on disk" "$(mktemp -d "$work/trash.XXXXXX")"; }
