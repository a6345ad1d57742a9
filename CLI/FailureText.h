// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exception>
#include <string>

namespace Korvane {

/// What an error says, behind the path that it is about where it is one of a file or a program. UTF-8.
std::string failureText(const std::exception& error);

} // namespace Korvane
