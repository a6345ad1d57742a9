// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/DuplicateCandidate.h"

#include "Core/Scanning/CancellableSort.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

using Candidates = std::vector<DuplicateCandidate>;

/// Leaves each path in a range once, where it comes first; gives the end of what is left.
constexpr std::ptrdiff_t candidatesBetweenLooks = 512;

Candidates::iterator removeRepeatedPaths(
    Candidates::iterator begin, Candidates::iterator end, const Cancellation& cancellation)
{
    // Marked first and moved afterwards: a path that is moved takes its text with it.
    std::unordered_set<std::string_view> known;
    std::vector<bool> isRepeated;
    for (auto candidate = begin; candidate != end; ++candidate) {
        if ((candidate - begin) % candidatesBetweenLooks == 0)
            cancellation.throwIfCancelled();
        isRepeated.push_back(!known.insert(candidate->url.native()).second);
    }
    known.clear();
    auto kept = begin;
    for (auto candidate = begin; candidate != end; ++candidate) {
        if (isRepeated[static_cast<std::size_t>(candidate - begin)])
            continue;
        if (kept != candidate)
            *kept = std::move(*candidate);
        ++kept;
    }
    return kept;
}

} // namespace

DuplicateCandidate::DuplicateCandidate(
    std::filesystem::path fileUrl, std::int64_t fileSize, std::optional<Timestamp> modificationDate)
    : url(std::move(fileUrl))
    , size(fileSize)
    , modified(modificationDate.value_or(Timestamp::min()))
{
}

void sortBySize(Candidates& candidates, const Cancellation& cancellation)
{
    cancellableStableSort(candidates, cancellation,
        [](const DuplicateCandidate& left, const DuplicateCandidate& right) { return left.size > right.size; });
    auto kept = candidates.begin();
    for (auto begin = candidates.begin(); begin != candidates.end();) {
        const auto end = std::find_if(begin, candidates.end(),
            [size = begin->size](const DuplicateCandidate& file) { return file.size != size; });
        const auto endOfOnce = end - begin < 2 ? end : removeRepeatedPaths(begin, end, cancellation);
        kept = kept == begin ? endOfOnce : std::move(begin, endOfOnce, kept);
        begin = end;
    }
    candidates.erase(kept, candidates.end());
}

void sortOldestFirst(std::vector<DuplicateCandidate>& candidates, const Cancellation& cancellation)
{
    cancellableStableSort(candidates, cancellation,
        [](const DuplicateCandidate& left, const DuplicateCandidate& right) { return left.modified < right.modified; });
}

} // namespace Korvane
