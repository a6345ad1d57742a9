// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane::PreferenceKeys {

/// Boolean, true when absent: cleaning moves to the Trash instead of deleting.
inline constexpr std::string_view moveToTrashInsteadOfDelete = "moveToTrashInsteadOfDelete";
/// Boolean, true when absent: cleaning asks first.
inline constexpr std::string_view confirmBeforeCleaning = "confirmBeforeCleaning";
/// Integer, 0 when absent: the bytes that the last cleaning freed. Always written before lastCleanedDate.
inline constexpr std::string_view lastCleanedBytes = "lastCleanedBytes";
/// Double, 0 when absent, which means never: when the last cleaning ended, in seconds since 1970-01-01 00:00 UTC.
inline constexpr std::string_view lastCleanedDate = "lastCleanedDate";

} // namespace Korvane::PreferenceKeys
