// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <cstdint>
#include <filesystem>

namespace Korvane {

/// Measures what things occupy on disk.
class FileSizeCalculator {
public:
    FileSizeCalculator() = delete;

    /// Allocated bytes of a file or of every regular file in a folder tree; what cannot be read counts 0.
    /// May take long: never on the main thread. Throws CancellationError only, when cancelled.
    static std::int64_t totalSize(const std::filesystem::path& url, const Cancellation& cancellation = {});
};

} // namespace Korvane
