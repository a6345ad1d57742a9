// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/DirectoryEntry.h"

#include <cstdint>
#include <system_error>

namespace Korvane {

/// What the readers of folders share on every POSIX host.

/// The flags of open(2) with which a folder is opened to be listed.
int folderOpenFlags() noexcept;

/// The error of the last system call of this thread.
std::error_code lastError() noexcept;

/// What the mode that stat(2) gives says of an entry.
EntryType entryTypeOfMode(unsigned mode) noexcept;

/// A time as nanoseconds since 1970; times beyond 64 bits become the nearest that fits.
std::int64_t nanosecondsSince1970(std::int64_t seconds, std::int64_t nanoseconds) noexcept;

} // namespace Korvane
