// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// The PNG image in an ".icns" file that is the smallest of those at least `pixels` wide, else the widest; nothing when
/// there is none. Only the table of images and the one chosen are read.
///
/// An ".icns" file is "icns" and its length, then for each image four letters that name its kind and its length with
/// these eight bytes, numbers with the most significant byte first. PNG images are of the kinds icp4 to icp6 and ic07
/// to ic14, where others may be as well; a width is what the image itself says.
std::optional<std::string> imageInIcns(const std::filesystem::path& file, int pixels);

} // namespace Korvane
