// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <string>

namespace Korvane {

/// What installs the tools that talk to iPhones and iPads here: a command for the user's terminal, or, where the
/// system's way to install is not known, the names of the packages. One line of UTF-8, fit to be shown. Reads one small
/// file: any thread.
std::string deviceToolsInstallation(const Environment& environment);

} // namespace Korvane
