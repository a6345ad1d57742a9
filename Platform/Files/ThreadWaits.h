// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

namespace Korvane {

/// How often the calling thread has slept so far because what it had asked for was not there yet, like a device's
/// answer; being interrupted for other threads does not count. 0 where the system does not tell.
std::size_t waitsOfThisThread() noexcept;

} // namespace Korvane
