// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/DuplicatesScanner.h"

#include "Core/Scanning/DuplicateCandidate.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Core/Scanning/HomeWalk.h"
#include "Core/Scanning/LastPathComponent.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"
#include "Platform/FileDigest.h"
#include "Platform/FreedElsewhere.h"
#include "Platform/Localized.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_map>
#include <utility>

namespace Korvane {

namespace {

using Candidate = DuplicateCandidate;

/// Files that lie side by side in the list of candidates and have the same size.
struct SizeGroup {
    std::vector<Candidate>::iterator begin;
    std::vector<Candidate>::iterator end;
};

/// The files that may have copies, those of one size side by side and in walk order, the largest first.
std::vector<Candidate> candidates(const DuplicatesScanner& scanner, const std::filesystem::path& home,
    const ProgressHandler& progress, const Cancellation& cancellation)
{
    FreedElsewhere<std::vector<Candidate>> found;
    const auto atMark = [&](const DirectoryEntry& entry) { progress({ displayText(entry.parentPath()), 0, 0 }); };
    HomeWalk::Files files;
    files.smallestFileSize = scanner.minimumFileSize;
    HomeWalk walk(scanner.root, home, files, atMark, cancellation);
    while (const auto* file = walk.nextFile()) {
        const auto& values = file->values();
        if (values.fileSize && *values.fileSize >= scanner.minimumFileSize)
            found->emplace_back(file->path(), *values.fileSize, values.contentModificationDate);
    }
    sortBySize(*found, cancellation);
    return std::move(*found);
}

/// Where the files of the same size as the first end.
std::vector<Candidate>::iterator endOfSize(std::vector<Candidate>::iterator first, std::vector<Candidate>::iterator end)
{
    return std::find_if(first, end, [size = first->size](const Candidate& file) { return file.size != size; });
}

/// Leaves out each file whose size no other has: it is never opened.
void removeUniqueSizes(std::vector<Candidate>& files)
{
    auto kept = files.begin();
    for (auto begin = files.begin(); begin != files.end();) {
        const auto end = endOfSize(begin, files.end());
        if (end - begin >= 2)
            kept = kept == begin ? end : std::move(begin, end, kept);
        begin = end;
    }
    files.erase(kept, files.end());
}

/// The files of one size by digest, in the order in which each digest was first met; unreadable files are left out.
std::vector<std::vector<Candidate>> groupByDigest(SizeGroup group, FileDigest& digest)
{
    std::vector<std::vector<Candidate>> sets;
    std::unordered_map<std::string, std::size_t> byHash;
    for (auto candidate = group.begin; candidate != group.end; ++candidate) {
        const auto hash = digest.nextPrefixHash();
        if (!hash)
            continue;
        const auto [entry, isNew] = byHash.try_emplace(*hash, sets.size());
        if (isNew)
            sets.emplace_back();
        sets[entry->second].push_back(std::move(*candidate));
    }
    return sets;
}

/// What stands over a set: the name of the file that is kept, how many there are, and how large each is.
std::string labelOf(const std::vector<Candidate>& set, const std::string& keptName)
{
    const int count = pluralCount(std::ssize(set));
    const auto text = localized(
        "Duplicates", "%1 — %n copies, %2 each", "%1 is the name of a file, %2 the size of each copy", count);
    return filledIn(text, { keptName, formattedBytes(set.front().size) });
}

/// Turns sets of equal files into items, and counts those that can be removed.
class Emission {
public:
    Emission(const ProgressHandler& progress, const Cancellation& cancellation)
        : m_progress(progress)
        , m_cancellation(cancellation)
    {
    }

    void emit(std::vector<Candidate>& set)
    {
        sortOldestFirst(set, m_cancellation);
        const auto& kept = set.front();
        const auto keptName = displayName(kept.url);
        const auto label = labelOf(set, keptName);
        m_items->emplace_back(
            kept.url, filledIn(localized("Duplicates", "%1 (original)"), { keptName }), label, kept.size, false);
        for (auto copy = set.begin() + 1; copy != set.end(); ++copy) {
            m_cancellation.throwIfCancelled();
            m_items->emplace_back(copy->url, std::nullopt, label, copy->size, true);
            m_found.currentPath = displayText(copy->url);
            m_found.itemsFound = checkedAdd(m_found.itemsFound, 1);
            m_found.bytesFound = checkedAdd(m_found.bytesFound, copy->size);
            m_progress(m_found);
        }
    }

    std::vector<ScanItem> takeItems() { return std::move(*m_items); }

private:
    const ProgressHandler& m_progress;
    const Cancellation& m_cancellation;
    ScanProgress m_found;
    FreedElsewhere<std::vector<ScanItem>> m_items;
};

} // namespace

DuplicatesScanner::DuplicatesScanner(
    std::filesystem::path rootFolder, std::int64_t minimumSize, std::int64_t prefixBytes)
    : minimumFileSize(minimumSize)
    , hashPrefixBytes(prefixBytes)
    , root(std::move(rootFolder))
{
}

std::vector<ScanItem> DuplicatesScanner::scan(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    FreedElsewhere list(candidates(*this, host.files->homeDirectoryForCurrentUser(), progress, cancellation));
    auto& files = *list;
    removeUniqueSizes(files);
    // Files are read ahead across sizes; a file that has its digest may leave its place in the list.
    const auto pathAt = [&](std::size_t index) -> const std::filesystem::path& { return files[index].url; };
    FileDigest digest(files.size(), pathAt, hashPrefixBytes, cancellation);
    Emission emission(progress, cancellation);
    for (auto begin = files.begin(); begin != files.end();) {
        const auto end = endOfSize(begin, files.end());
        cancellation.throwIfCancelled();
        for (auto& set : groupByDigest({ begin, end }, digest)) {
            if (set.size() >= 2)
                emission.emit(set);
        }
        begin = end;
    }
    return emission.takeItems();
}

SharedStorageOfItems DuplicatesScanner::sharedStorage(
    const std::vector<ScanItem>& items, const Cancellation& cancellation) const
{
    return sharedStorageInSets(items, cancellation);
}

} // namespace Korvane
