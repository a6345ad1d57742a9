// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"
#include "Platform/Cancellation.h"

#include <unordered_map>
#include <vector>

namespace Korvane {

/// What an item shares with the others of its set of duplicates, where cleaning it does not do what it seems to.
enum class SharedStorage {
    OneFile, ///< All of the set are names of one file (hard links): removing a copy frees no space.
    OneName, ///< Another path of the set leads to this very name (through a second mount): removing one removes both.
};

/// The items that share their storage; no other.
using SharedStorageOfItems = std::unordered_map<Uuid, SharedStorage>;

/// Looks at the sets that a scan for duplicates has found, each of which begins with its only item that is not
/// selectable by default.
///
/// Asks the file system for each item and its folder; one that is gone by now shares nothing. Off the main thread. Throws
/// CancellationError when cancelled.
SharedStorageOfItems sharedStorageInSets(const std::vector<ScanItem>& items, const Cancellation& cancellation);

} // namespace Korvane
