// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace Korvane {

/// UTF-8 text in lower case by the rules of Unicode, in no particular language; bytes that are not UTF-8 stay,
/// or become U+FFFD. For comparing names without regard to case, never for making one. Any thread.
std::string lowercased(std::string_view text);

} // namespace Korvane
