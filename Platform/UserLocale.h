// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// The locale in which numbers, units and dates are written for this user, as ICU names it ("de_DE", "fr").
///
/// The user's own, where the program speaks its language; otherwise the language of the program as the user's region
/// writes it, so that no sentence is in two. Linux: the user's own comes from LC_ALL, LC_MESSAGES, LANG; "en" when they
/// say nothing. macOS: the user's settings, which the system itself holds to the languages of the bundle.
std::string userLocaleName();

/// The program speaks this language, as ICU names it ("de", "zh_CN"), from now on; before, and with an empty name, that
/// of the user, whichever it is. Formatters keep the first that they meet: this comes before them. One thread.
void setSpokenLanguage(const std::string& name);

} // namespace Korvane
