// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserDefaults.h"

#include "Platform/Preferences/FileUserDefaults.h"

namespace Korvane {

std::shared_ptr<UserDefaults> makeUserDefaults(const Environment& environment)
{
    return makeFileUserDefaults(environment.configHome() / "korvane" / "korvane.conf");
}

} // namespace Korvane
