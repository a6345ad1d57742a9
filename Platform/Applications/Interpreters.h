// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane {

/// Whether a program of this name runs other programs, so that its name says nothing about which application runs.
///
/// Shells, languages, launchers and wrappers, with or without a version at the end ("python3.11", "node18").
bool isInterpreter(std::string_view programName);

} // namespace Korvane
