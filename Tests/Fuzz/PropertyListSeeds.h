// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace Korvane {

/// Small property lists of every kind that exists, sound and hostile, from which inputs for tests are bred.
std::vector<std::string> propertyListSeeds();

/// Lists of the table that share their values: `depth` arrays, each naming the next one twice.
std::string sharedReferenceList(std::size_t depth);

} // namespace Korvane
