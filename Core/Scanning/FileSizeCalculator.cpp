// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FileSizeCalculator.h"

#include "Platform/TreeMeasure.h"

namespace Korvane {

std::int64_t FileSizeCalculator::totalSize(const std::filesystem::path& url, const Cancellation& cancellation)
{
    return totalAllocatedSize(url, cancellation);
}

} // namespace Korvane
