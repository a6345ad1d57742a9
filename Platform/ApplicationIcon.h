// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// The bytes of an image (PNG, elsewhere than on macOS also SVG) that stands for an application: at least `pixels` wide
/// where there is one, else the widest there is; nothing when there is none, or none that can be read.
///
/// macOS: the icon that the desktop shows for the file. Elsewhere: `application` is a bundle, whose own ".icns" file is
/// read; the folder of a Flatpak, whose exported icons are; or an image file itself, such as an icon of an AppImage.
/// Reads at most a few megabytes and never throws for what it finds. Any thread; not the main one, for it reads files.
std::optional<std::string> applicationIcon(const std::filesystem::path& application, int pixels);

} // namespace Korvane
