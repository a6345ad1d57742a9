// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/EntryStatus.h"
#include "Platform/Files/OpenFolder.h"

#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <string>

namespace Korvane {

/// One folder of a tree that is being removed, from when its parent listed it until it is gone.
struct DoomedFolder {
    std::string name;
    DoomedFolder* parent = nullptr; ///< Lives longer than this; null for the folder that the item lies in.
    std::size_t depth = 0;

    /// Filled in when it is first opened, before anything it holds is known to others.
    std::optional<EntryStatus> status;

    // Guarded by the remover's lock.
    std::size_t unfinished = 1; ///< Subfolders still there, and one more while it is being read.
    bool readToEnd = false;
    bool openedUp = false; ///< Its owner was given permissions that status.mode does not hold.
    std::list<DoomedFolder>::iterator self{};

    // Guarded by the cache's lock.
    std::shared_ptr<OpenFolder> open; ///< Empty before it is opened, and while it is put aside.
    std::list<DoomedFolder*>::iterator cached{};

    unsigned passes = 0; ///< How often it was found not empty after it had been read to its end; its remover's alone.
};

} // namespace Korvane
