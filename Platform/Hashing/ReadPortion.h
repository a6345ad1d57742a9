// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>

namespace Korvane {

/// The first bytes of a file as they were read, or a part of them when they are many.
struct ReadPortion {
    std::unique_ptr<unsigned char[]> bytes; ///< Made when first needed.
    std::size_t count = 0;
    bool isReadable = false; ///< Whether the file could be opened and read.
    bool isLast = true; ///< Whether the next portion is of another file.
};

} // namespace Korvane
