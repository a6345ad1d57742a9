// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// The application bundle that a program lies in, by the layout NAME.app/Contents/MacOS/PROGRAM; empty when in none.
std::filesystem::path bundleAround(const std::filesystem::path& program);

} // namespace Korvane
