// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane {

/// Whether a folder of this name is a package by its extension, compared without regard to case.
///
/// The platform decides on macOS; elsewhere a table of the extensions that macOS registers does. Frameworks are
/// no packages on either.
bool hasPackageExtension(std::string_view folderName);

} // namespace Korvane
