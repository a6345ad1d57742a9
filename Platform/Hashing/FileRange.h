// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace Korvane {

/// A stretch of a file, in bytes.
struct FileRange {
    std::int64_t offset = 0;
    std::int64_t count = 0;

    std::int64_t end() const noexcept { return offset + count; }
};

} // namespace Korvane
