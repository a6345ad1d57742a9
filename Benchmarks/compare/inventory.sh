# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Jobs of listing applications; sourced by compare.sh. Every answer is the allocated bytes of all that was listed.
JOBS+=(inventory)

# made_applications COUNT FILES: a home folder of so many bundles of so many files, each with seven leftovers.
made_applications() {
    local path=$work/applications-$1-$2 index app identifier place
    if [[ ! -e $path.made ]]; then
        rm -rf "$path"
        mkdir -p "$path/Applications" "$path/Library/"{"Application Support",Caches,Preferences,"Saved Application State"} \
            "$path/Library/"{HTTPStorages,WebKit,Containers}
        for ((index = 0; index < $1; ++index)); do
            app=$path/Applications/App$index.app identifier=com.example.App$index
            "$tools/bench-make-tree" "$app" "$2" "$(($2 / 16))" 4
            mkdir -p "$app/Contents"
            printf '<plist version="1.0"><dict><key>CFBundleIdentifier</key><string>%s</string></dict></plist>\n' \
                "$identifier" >"$app/Contents/Info.plist"
            cp "$app/Contents/Info.plist" "$path/Library/Preferences/$identifier.plist"
            for place in "Application Support/$identifier" "Caches/$identifier" "HTTPStorages/$identifier" \
                "WebKit/$identifier" "Containers/$identifier" "Saved Application State/$identifier.savedState"; do
                mkdir -p "$path/Library/$place"
                cp "$app/Contents/Info.plist" "$path/Library/$place/data"
            done
        done
        sync -f "$path"
        touch "$path.made"
    fi
    printf '%s\n' "$path"
}

job_inventory() {
    local home each=$((files / 300))
    home=$(made_applications 300 "$each")
    begin "List 300 applications of $each files with 7 leftovers each, warm"
    contestant "one totalSize" cat "$tools/bench-measure" "$home"
    contestant korvane cat "$tools/bench-inventory" "$home"
    contestant "bare loop" cat "$tools/bench-bare-walk" "$home"
    finish
}
