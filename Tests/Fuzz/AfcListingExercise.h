// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// Listings as the builds of "afcclient" print them, and odd ones, for inputs to be bred from.
std::vector<std::string> afcListingSeeds();

/// Reads these bytes as what "afcclient" printed, and asks for everything that is made of it.
///
/// Returns what is wrong: a name that could leave its folder, end a line of a script or be no name of the listing; a
/// path made of names that is taken for another. Empty when nothing is.
std::string exerciseAfcListing(std::string_view bytes);

} // namespace Korvane
