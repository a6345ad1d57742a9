// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ThreadWaits.h"

namespace Korvane {

std::size_t waitsOfThisThread() noexcept { return 0; } // Counted there for whole processes only.

} // namespace Korvane
