// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/BackgroundItems.h"

namespace Korvane {

std::vector<BackgroundItem> backgroundItems(const Environment&, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    return {};
}

std::vector<std::filesystem::path> ownFolders(BackgroundItem::Kind, const Environment&) { return {}; }

std::optional<ChildProcess> unitStop(const std::filesystem::path&, const Environment&) { return std::nullopt; }

} // namespace Korvane
