// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

namespace Korvane {

/// Some entries of a folder, as read in one go; "." and ".." are never among them.
///
/// Used again for the next ones, so that reading a folder allocates nothing. Names live until then.
struct EntryBatch {
    enum class Kind { Folder, Other, Unknown };

    struct Entry {
        const char* name;
        Kind kind;
    };

    std::vector<Entry> entries;
    std::vector<char> bytes;
};

} // namespace Korvane
