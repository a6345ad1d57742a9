// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace Korvane {

/// Reads these bytes as a property list and asks its values for everything they can tell, with a bound on the walk.
///
/// Returns what is wrong: more values than bytes, a text that is not UTF-8, an accessor that disagrees with the kind.
/// Empty when nothing is, whether the bytes are a list or not.
std::string exercisePropertyList(std::string_view bytes);

} // namespace Korvane
