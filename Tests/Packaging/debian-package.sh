#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# `cpack` makes a package that holds everything at its place and says what it depends on.
#
#   debian-package.sh BUILD-FOLDER VERSION
set -euo pipefail
build="$1"
version="$2"
place="$(mktemp -d)"
trap 'rm -rf "$place"' EXIT
fail() { echo "$*"; exit 1; }

cpack -G DEB -B "$place" --config "$build/CPackConfig.cmake" || fail "cpack failed"
package="$(echo "$place"/korvane_"$version"*.deb)"
[ -f "$package" ] || fail "no package made"

contents="$(dpkg-deb --contents "$package" | awk '{ print $6 }')"
expected=(
    ./usr/bin/korvane
    ./usr/bin/korvane-cli
    ./usr/share/applications/org.korvane.Korvane.desktop
    ./usr/share/doc/korvane/copyright
    ./usr/share/icons/hicolor/scalable/apps/org.korvane.Korvane.svg
    ./usr/share/man/man1/korvane-cli.1
    ./usr/share/metainfo/org.korvane.Korvane.metainfo.xml
)
for size in 16 22 24 32 48 64 128 256 512; do
    expected+=("./usr/share/icons/hicolor/${size}x$size/apps/org.korvane.Korvane.png")
done
for file in "${expected[@]}"; do
    grep -qxF "$file" <<<"$contents" || fail "$file is missing from the package"
done
unexpected="$(grep -v '/$' <<<"$contents" | grep -vxF -f <(printf '%s\n' "${expected[@]}") || true)"
[ -z "$unexpected" ] || fail "more in the package than should be: $unexpected"

depends="$(dpkg-deb --field "$package" Depends)"
for name in libqt6quick6 libqt6svg6 libicu libssl qml6-module-qtquick-templates qml6-module-qtquick-layouts \
    qt6-translations-l10n; do
    [[ $depends == *"$name"* ]] || fail "the package does not depend on $name: $depends"
done
recommends="$(dpkg-deb --field "$package" Recommends)"
[[ $recommends == *libimobiledevice-utils* ]] || fail "the tools for devices are not recommended: $recommends"

dpkg-deb --extract "$package" "$place/root"
desktop-file-validate "$place/root/usr/share/applications/org.korvane.Korvane.desktop"
file "$place/root/usr/share/icons/hicolor/48x48/apps/org.korvane.Korvane.png" | grep -q 'PNG image data, 48 x 48' \
    || fail "the icon of 48 is not a picture of that size"
[ "$("$place/root/usr/bin/korvane-cli" modules | wc -l)" -ge 6 ] || fail "the packed korvane-cli does not run"
