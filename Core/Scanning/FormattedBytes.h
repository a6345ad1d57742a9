// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace Korvane {

/// A byte count as every screen shows it, UTF-8, in the user's locale.
std::string formattedBytes(std::int64_t byteCount);

} // namespace Korvane
