// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/ItemPlace.h"
#include "Platform/Files/ProtectedPlaces.h"
#include "Platform/Files/Trash.h"

#include <filesystem>
#include <memory>
#include <mutex>

namespace Korvane {

/// What one run of moves to the Trash keeps open from item to item.
///
/// Nothing in it is trusted unseen: for each item the paths are looked up again, and a folder is used only when it is
/// the very one that they lead to now.
struct TrashRun {
    explicit TrashRun(const std::filesystem::path& home)
        : protectedPlaces(home)
    {
    }

    std::mutex mutex; ///< Held by the one thread that uses the rest.
    ProtectedPlaces protectedPlaces;
    KeptFolder parent;
    std::shared_ptr<FreedesktopTrash> trash;
};

} // namespace Korvane
