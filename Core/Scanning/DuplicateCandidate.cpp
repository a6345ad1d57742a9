// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/DuplicateCandidate.h"

#include <algorithm>
#include <utility>

namespace Korvane {

DuplicateCandidate::DuplicateCandidate(
    std::filesystem::path fileUrl, std::int64_t fileSize, std::optional<Timestamp> modificationDate)
    : url(std::move(fileUrl))
    , size(fileSize)
    , modified(modificationDate.value_or(Timestamp::min()))
{
}

void sortOldestFirst(std::vector<DuplicateCandidate>& candidates)
{
    std::stable_sort(candidates.begin(), candidates.end(),
        [](const DuplicateCandidate& left, const DuplicateCandidate& right) { return left.modified < right.modified; });
}

} // namespace Korvane
