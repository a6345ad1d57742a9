#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The demo home is the same every time, holds what it promises, and never lands on something that exists.
set -euo pipefail
place="$(mktemp -d)"
trap 'rm -rf "$place"' EXIT
fail() { echo "$*"; exit 1; }
listing() { (cd "$1" && find . -printf '%p %y %s %T@\n' | LC_ALL=C sort); }
if [ "$(uname -s)" = Darwin ]; then
    listing() { (cd "$1" && find . -exec stat -f '%N %HT %z %m' {} + | LC_ALL=C sort); }
fi

mkdir "$place/a" "$place/b"
scripts/demo-home "$place/a/home" --small --applications 3
scripts/demo-home "$place/b/home" --small --applications 3
[ "$(listing "$place/a/home")" = "$(listing "$place/b/home")" ] || fail "two demo homes differ"

for path in Library/Caches Library/Logs Library/Developer/Xcode/DerivedData Library/Developer/CoreSimulator/Caches \
    Library/LaunchAgents "Library/Application Support/MobileSync/Backup" .Trash .local/share/Trash/info .cache tmp \
    Applications/Fernglass.app/Contents/Info.plist Applications/Fernglass.app/Contents/Resources/AppIcon.icns \
    "Applications/Cedar Notes 2.app/Contents/Info.plist" \
    Library/Containers/org.fernglass.Fernglass Documents Movies Pictures Projects/weather-garden/node_modules; do
    [ -e "$place/a/home/$path" ] || fail "no $path in the demo home"
done
cmp "$place/a/home/Pictures/2024 Brest/IMG_0412.mov" "$place/a/home/Desktop/IMG_0412 copy.mov" || fail "no duplicates"

mkdir "$place/taken"
echo precious > "$place/taken/file"
if scripts/demo-home "$place/taken" --small 2>/dev/null; then
    fail "a folder with something in it was accepted"
fi
[ "$(ls "$place/taken")" = file ] && [ "$(cat "$place/taken/file")" = precious ] || fail "something that existed was touched"
