// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-measure PATH...: the allocated bytes of all paths, measured one after another.

#include "Platform/Checked.h"
#include "Platform/TreeMeasure.h"

#include <cstdio>

int main(int count, char** arguments)
{
    std::int64_t total = 0;
    for (int index = 1; index < count; ++index)
        total = Korvane::checkedAdd(total, Korvane::totalAllocatedSize(arguments[index]));
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
