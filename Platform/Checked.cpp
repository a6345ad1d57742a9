// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Checked.h"

#include <cstdio>
#include <cstdlib>

namespace Korvane {

void stopOnOverflow() noexcept
{
    std::fputs("korvane: a byte total does not fit 64 bits; stopping before anything is done with it\n", stderr);
    std::abort();
}

} // namespace Korvane
