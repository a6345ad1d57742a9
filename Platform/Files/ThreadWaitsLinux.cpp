// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ThreadWaits.h"

#include <sys/resource.h>

namespace Korvane {

std::size_t waitsOfThisThread() noexcept
{
    rusage usage{};
    return getrusage(RUSAGE_THREAD, &usage) == 0 ? static_cast<std::size_t>(usage.ru_nvcsw) : 0;
}

} // namespace Korvane
