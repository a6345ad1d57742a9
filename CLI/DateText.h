// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace Korvane {

/// A point in time whose origin may have meant any.
using AnyDate = std::chrono::sys_time<std::chrono::milliseconds>;

/// The day on which it lies here, as ISO 8601 writes it: "2026-11-21". Nothing outside of the years 0 to 9999.
std::optional<std::string> localDay(AnyDate date);

/// The second in which it lies, in universal time, as ISO 8601 writes it: "2026-11-21T17:05:00Z". Nothing outside of
/// the years 0 to 9999.
std::optional<std::string> universalTime(AnyDate date);

} // namespace Korvane
