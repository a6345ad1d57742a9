// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/CommandLine.h"

namespace Korvane {

namespace {

constexpr std::string_view text
    = "Usage:\n"
      "  korvane-cli modules [--json]\n"
      "  korvane-cli scan MODULE [--json]\n"
      "  korvane-cli clean MODULE [--all | --item PATH ...] [--delete] [--yes] [--json]\n"
      "  korvane-cli apps [--json]\n"
      "  korvane-cli uninstall PATH-OR-ID [--yes] [--json]\n"
      "  korvane-cli maintenance [list | run TASK] [--json]\n"
      "  korvane-cli agents [list] [--json]\n"
      "  korvane-cli agents remove PATH [--yes] [--json]\n"
      "  korvane-cli devices [--json]\n"
      "  korvane-cli backups [list] [--json]\n"
      "  korvane-cli backups remove PATH [--yes] [--json]\n"
      "  korvane-cli media list UDID [--json]\n"
      "  korvane-cli media export UDID PATH ... [--to DIR] [--json]\n"
      "  korvane-cli media delete UDID PATH ... [--yes] [--json]\n"
      "  korvane-cli --help | --version\n"
      "\n"
      "MODULE is systemJunk, largeFiles or duplicates. TASK is freeRAM, flushDNS or\n"
      "reindexSpotlight.\n"
      "\n"
      "scan shows what could be cleaned, and changes nothing. clean scans, then takes the\n"
      "pre-selected findings, and without --yes only says what it would do.\n"
      "\n"
      "apps lists the installed applications with what each has left behind. uninstall moves\n"
      "one of them, named by its path or its identifier, with all of that to the Trash; it\n"
      "refuses an application that is running, and without --yes only says what it would do.\n"
      "\n"
      "maintenance lists the tasks, and which of them can be run here; run does one, for which\n"
      "the system may ask for an administrator's password. agents lists what starts by itself.\n"
      "remove moves the file of one item of the user's own to the Trash, once its service\n"
      "manager has stopped it; an autostart entry is only moved, and what it has started runs\n"
      "on. Without --yes remove only says what it would do.\n"
      "\n"
      "devices shows the iPhones and iPads on the cable. backups lists the backups of such devices\n"
      "that are kept here; remove moves one of them to the Trash, and without --yes only says what\n"
      "it would do.\n"
      "\n"
      "media lists the photos and videos of the device with this identifier. export copies some of\n"
      "them to the downloads and replaces nothing there; delete deletes them from the device for\n"
      "good, and without --yes only says what it would do.\n"
      "\n"
      "  --all        take all findings, also those that may be in use or needed\n"
      "  --item PATH  take this finding; may be given more than once\n"
      "  --delete     delete for good instead of moving to the Trash\n"
      "  --to DIR     export to this folder\n"
      "  --yes        do it\n"
      "  --json       print one line of JSON\n"
      "\n"
      "Exit status: 0 done, 1 some items failed, 2 wrong use, 130 cancelled by Ctrl-C.\n";

} // namespace

std::string_view usageText() { return text; }

} // namespace Korvane
