// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/ReserveSpace.h"

#include <fcntl.h>

namespace Korvane {

bool reserveSpace(int descriptor, std::int64_t bytes)
{
    return fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, bytes) == 0;
}

} // namespace Korvane
