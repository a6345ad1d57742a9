// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane {

/// Whether an SVG drawing, whoever made it, can be drawn in a short time and from nothing but itself.
///
/// Refused: style sheets and pictures in other files, which Qt's reader opens by any path, be it a pipe or a device;
/// pictures within, unless they are PNG images no larger than an icon, two at most; parts repeated within repeated
/// parts, which grow without bound; and what is longer than 2 MiB, or than 8 MiB with a share for each of its styles
/// and repetitions.
bool isPlainDrawing(std::string_view svg);

} // namespace Korvane
