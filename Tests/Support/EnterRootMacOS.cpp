// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/EnterRoot.h"

#include <unistd.h>

namespace Korvane {

bool enterRoot(const std::filesystem::path& folder)
{
    return ::chroot(folder.c_str()) == 0 && ::chdir("/") == 0; // Permitted to root alone.
}

} // namespace Korvane
