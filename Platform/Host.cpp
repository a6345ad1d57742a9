// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Host.h"

namespace Korvane {

Host makeHost(const Environment& environment)
{
    return { environment, makeFileManager(environment), makeWorkspace(environment), makeUserDefaults(environment),
        makeApplicationCatalog(environment), makeProcessRunner() };
}

} // namespace Korvane
