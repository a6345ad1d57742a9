// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane {

/// The path without the slashes behind it, as shells put them behind the name of a folder, so that paths compare and
/// join as plain texts; a path of nothing but slashes is "/". A view of the argument. Any thread.
std::string_view withoutTrailingSlashes(std::string_view path) noexcept;

} // namespace Korvane
