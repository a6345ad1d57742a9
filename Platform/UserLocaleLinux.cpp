// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserLocale.h"

#include <string_view>
#include <unicode/locid.h>

namespace Korvane {

namespace {

std::string& spokenLanguage()
{
    static std::string name;
    return name;
}

} // namespace

std::string userLocaleName()
{
    const icu::Locale& user = icu::Locale::getDefault();
    const icu::Locale spoken(spokenLanguage().c_str());
    if (spokenLanguage().empty() || std::string_view(spoken.getLanguage()) == user.getLanguage())
        return user.getName();
    return icu::Locale(spoken.getLanguage(), user.getCountry()).getName();
}

void setSpokenLanguage(const std::string& name) { spokenLanguage() = name; }

} // namespace Korvane
