// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace Korvane {

/// Gives the empty file behind `descriptor` room for so many bytes without changing its length; false where the file
/// system cannot.
bool reserveSpace(int descriptor, std::int64_t bytes);

} // namespace Korvane
