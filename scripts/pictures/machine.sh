#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs a program on a machine made up for a picture, in mounts of its own that end with it: the real one is not touched.
#
#   unshare --mount machine.sh PLACE HOME full|roomy COMMAND [ARGUMENT ...]
#
# PLACE/home lies at HOME; PLACE/bin is /usr/bin (links into PLACE/usr-bin, where the real one is); what is installed by
# hand is not there. On a full machine hardly anything is free where "/" lies.
set -euo pipefail

place="$1" home="$2" room="$3"
shift 3

mount --make-rprivate /
mkdir -p "$place/usr-bin" "$place/homes" "$place/nothing"
mount --bind /usr/bin "$place/usr-bin"
mount --bind "$place/bin" /usr/bin
for folder in /usr/local/bin /opt/homebrew/bin; do
    if [ -d "$folder" ]; then mount --bind "$place/nothing" "$folder"; fi
done

# A folder for the home cannot be made among those of the real users: theirs are brought into a new one.
for other in /home/*/; do
    if [ -d "$other" ]; then
        mkdir "$place/homes/$(basename "$other")"
        mount --rbind "$other" "$place/homes/$(basename "$other")"
    fi
done
mkdir -p "$place/homes/$(basename "$home")"
mount --rbind "$place/homes" "$(dirname "$home")"
mount --bind "$place/home" "$home"

if [ "$room" = full ]; then
    mkdir "$place/root"
    mount -t tmpfs -o size=512m none "$place/root"
    for entry in /*; do
        if [ -L "$entry" ]; then
            cp -P "$entry" "$place/root$entry"
        elif [ -d "$entry" ]; then
            mkdir "$place/root$entry"
            mount --rbind "$entry" "$place/root$entry"
        fi
    done
    fallocate -l 480M "$place/root/filled"
    exec chroot "$place/root" "$@"
fi
exec "$@"
