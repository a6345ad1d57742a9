// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Structure/SourceText.h"

#include <string>
#include <vector>

namespace Korvane::Structure {

/// What is wrong with one file, each as "path:line: reason"; empty when it keeps to the house.
using Complaints = std::vector<std::string>;

/// Includes: rooted at the project, never up to a higher floor or across between windows and terminal.
Complaints checkFloors(const SourceText& file);

/// Core, and the headers of Platform, include nothing but themselves and the C++ standard library.
Complaints checkPurity(const SourceText& file);

/// QML knows Qt and Korvane.UI, says `pragma ComponentBehavior: Bound`, and sits in a room that may draw.
Complaints checkQml(const SourceText& file);

/// Objective-C++ lives only in Platform's and App's *MacOS.mm, no source asks the preprocessor which system it is on, and
/// none but those for Linux qualifies what is a macro on macOS.
Complaints checkPlatformSeam(const SourceText& file);

/// Outside Platform nothing removes or moves a file by itself: that is asked of FileManager.
Complaints checkRemoving(const SourceText& file);

/// Both SPDX lines stand among the first five.
Complaints checkLicence(const SourceText& file);

/// Sources of at most 300 lines, headers 120, QML 200, and functions of at most 40.
Complaints checkLengths(const SourceText& file);

/// All of the above.
Complaints check(const SourceText& file);

} // namespace Korvane::Structure
