#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The desktop entry and the AppStream metadata keep to their standards.
set -euo pipefail
folder=Packaging/linux

complaints="$(desktop-file-validate "$folder/org.korvane.Korvane.desktop" 2>&1 || true)"
if [ -n "$complaints" ]; then
    printf '%s\n' "$complaints"
    exit 1
fi
appstreamcli validate --no-net --strict "$folder/org.korvane.Korvane.metainfo.xml"
