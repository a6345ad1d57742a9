// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserLocale.h"

#include <unicode/locid.h>

namespace Korvane {

std::string userLocaleName() { return icu::Locale::getDefault().getName(); }

} // namespace Korvane
