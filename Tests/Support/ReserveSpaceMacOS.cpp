// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/ReserveSpace.h"

#include <fcntl.h>

namespace Korvane {

bool reserveSpace(int descriptor, std::int64_t bytes)
{
    // fcntl(2): room behind what the file occupies now, which is nothing.
    fstore_t wanted{};
    wanted.fst_flags = F_ALLOCATEALL;
    wanted.fst_posmode = F_PEOFPOSMODE;
    wanted.fst_length = bytes;
    return fcntl(descriptor, F_PREALLOCATE, &wanted) == 0;
}

} // namespace Korvane
