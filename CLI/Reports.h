// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/CommandLine.h"
#include "Core/Cleaning/Cleaner.h"
#include "Core/Modules.h"
#include "Core/Scanning/ScanItem.h"
#include "Core/Scanning/SharedStorage.h"

#include <string>
#include <vector>

namespace Korvane {

/// What is about to be cleaned, and how.
struct CleaningPlan {
    /// One finding, and what cleaning does to it.
    struct Step {
        ScanItem item;
        Cleaner::Action action;
    };

    CleanerModule module;
    CommandLine::Selection selection;
    std::vector<Step> steps;
    SharedStorageOfItems shared; ///< Said of its items in the text alone.
};

/// The modules, those that can be scanned here marked as such.
std::string modulesAsText();
std::string modulesAsJson();

/// The findings by category, in the order in which each category first occurs, with sizes and totals; what an item
/// shares with others of its set stands behind its path.
std::string findingsAsText(const std::vector<ScanItem>& items, const SharedStorageOfItems& shared = {});
/// `{"module", "items": [{"path", "displayName", "category", "sizeInBytes", "selectableByDefault"}], "totalBytes"}`;
/// a path that is not UTF-8 is given as it is shown, and exactly as "pathBase64".
std::string findingsAsJson(CleanerModule module, const std::vector<ScanItem>& items);

/// What cleaning would do.
std::string planAsText(const CleaningPlan& plan);
/// As findingsAsJson, with "dryRun" and, for each item, "action": "moveToTrash", "delete" or "emptyTrash".
std::string planAsJson(const CleaningPlan& plan);

/// What cleaning has done.
std::string resultAsText(const Cleaner::Result& result);
/// `{"cleanedBytes", "cleanedCount", "failures": [{"path", "message"}]}`, paths as in findingsAsJson.
std::string resultAsJson(const Cleaner::Result& result);

} // namespace Korvane
