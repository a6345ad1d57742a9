#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The desktop entry and the AppStream metadata keep to their standards, and speak every language of the program.
set -euo pipefail
entry=Packaging/linux/org.korvane.Korvane.desktop
metainfo=Packaging/linux/org.korvane.Korvane.metainfo.xml

complaints="$(desktop-file-validate "$entry" 2>&1 || true)"
if [ -n "$complaints" ]; then
    printf '%s\n' "$complaints"
    exit 1
fi
appstreamcli validate --no-net --strict "$metainfo"

exec python3 - "$entry" "$metainfo" Translations/korvane_*.ts <<'EOF'
import re
import sys
import xml.etree.ElementTree as ElementTree

entry, metainfo, *catalogues = sys.argv[1:]
languages = {re.search(r"korvane_(\w+)\.ts$", name)[1] for name in catalogues}
missing = [] if languages else ["no catalogue is found"]

values = {}
for line in open(entry, encoding="utf-8"):
    found = re.match(r"(\w+)(?:\[(\w+)\])?=(.*)", line)
    if found:
        values.setdefault(found[1], {})[found[2]] = found[3]
for key in ("Name", "GenericName", "Comment", "Keywords"):
    given = {language for language, text in values.get(key, {}).items() if language and text.strip(" ;")}
    missing += [f"{entry}: {key} in {language}" for language in languages ^ given]

# Every text has its translations right after it.
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
root = ElementTree.parse(metainfo).getroot()
for parent in (root, *root.iter("description"), *root.iter("ul")):
    texts = []
    for child in parent:
        if child.tag not in ("summary", "p", "li"):
            continue
        language = child.get(LANGUAGE)
        if language is None:
            texts.append((child, set()))
        elif (child.text or "").strip():
            texts[-1][1].add(language.replace("-", "_"))
    if not texts:
        missing.append(f"{metainfo}: no text in <{parent.tag}>")
    for text, given in texts:
        missing += [f"{metainfo}: in {language}: {text.text.strip()}" for language in languages ^ given]

print("\n".join(sorted(missing)))
sys.exit(1 if missing else 0)
EOF
