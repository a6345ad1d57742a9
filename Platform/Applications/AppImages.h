// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Environment.h"
#include "Platform/HostApplication.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// Whether a regular file is an application image: an ELF program with "AI" and the type 1 or 2 at offset 8 (AppImage
/// format, draft), or any file of a name that ends in ".AppImage". Follows no link; never waits for a pipe.
bool isAppImage(const std::filesystem::path& file);

/// The AppImages in the home folder that the user's desktop entries start, sorted by id, each once.
///
/// Only an image that lies in the home folder even when links are followed counts, and only entries and icons in
/// folders that do; one of these that is a link itself goes as the link. An icon belongs to an image when no other
/// entry of the user names it, and it lies loosely in the user's icons, in their "hicolor" theme, or beside the image:
/// never in a theme of its own, and never among the user's pictures. Throws CancellationError.
std::vector<HostApplication> installedAppImages(const Environment& environment, const Cancellation& cancellation);

} // namespace Korvane
