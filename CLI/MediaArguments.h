// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/CommandLine.h"

#include <string>
#include <vector>

namespace Korvane {

/// Reads the arguments of "media", the first of them, into a command line. Throws UsageError.
void readMediaArguments(const std::vector<std::string>& arguments, CommandLine& line);

} // namespace Korvane
