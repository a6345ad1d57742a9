// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// The locale in which numbers and units are written for this user, as ICU names it ("de_DE", "fr").
///
/// Linux: from LC_ALL, LC_MESSAGES, LANG; "en" when they say nothing. macOS: the user's own region settings.
std::string userLocaleName();

} // namespace Korvane
