// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SharedTemporaryFolder.h"

#include "Core/Scanning/LastPathComponent.h"
#include "Platform/DirectoryEnumerator.h"
#include "Platform/FileAttributes.h"
#include "Platform/LowerCase.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Korvane {

namespace {

/// The most that a lock file holds: the number of a process and the name of a machine. What package managers call a
/// lock is a list, and longer.
constexpr std::int64_t largestLock = 100;

bool endsWith(std::string_view text, std::string_view ending)
{
    return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

/// Whether a name says that the thing is a lock.
bool isNamedAsLock(std::string_view name)
{
    static constexpr std::array<std::string_view, 4> names{ "lock", "lockfile", "singletonlock", ".parentlock" };
    static constexpr std::array<std::string_view, 4> endings{ ".lock", "-lock", "_lock", ".lck" };
    const auto lower = lowercased(name);
    return std::find(names.begin(), names.end(), lower) != names.end()
        || std::any_of(
            endings.begin(), endings.end(), [&](std::string_view ending) { return endsWith(lower, ending); });
}

bool isLockFile(const DirectoryEntry& entry)
{
    if (entry.type() == EntryType::Directory || !isNamedAsLock(entry.name()))
        return false;
    return entry.type() != EntryType::RegularFile || entry.values().fileSize.value_or(0) <= largestLock;
}

} // namespace

SharedTemporaryFolder::SharedTemporaryFolder(PlaceOverlap protectedPlaces, Timestamp now)
    : m_protectedPlaces(std::move(protectedPlaces))
    , m_newestUnused(now - unusedFor)
{
}

bool SharedTemporaryFolder::isUnused(const std::filesystem::path& child, const Cancellation& cancellation) const
{
    const auto attributes = attributesOfItem(child);
    if (!attributes.exists || !attributes.isOwnedByCurrentUser || attributes.isSocketOrPipe || attributes.isLocked)
        return false;
    if (attributes.contentModificationDate > m_newestUnused || isNamedAsLock(lastPathComponent(child)))
        return false;
    if (m_protectedPlaces.isOrContainsPlace(child))
        return false;
    return !attributes.isDirectory || isContentUnused(child, cancellation);
}

bool SharedTemporaryFolder::isContentUnused(const std::filesystem::path& folder, const Cancellation& cancellation) const
{
    bool isReadable = true;
    EnumerationOptions options;
    options.values = PrefetchedValues::AllValues;
    options.errorHandler = [&isReadable](const FileError&) {
        isReadable = false;
        return OnError::Stop;
    };
    DirectoryEnumerator enumerator(folder, std::move(options), cancellation);
    int lockQuestionsLeft = lockQuestions;
    while (const auto* entry = enumerator.next()) {
        const auto modified = entry->values().contentModificationDate;
        if (!entry->hasValues() || !modified || *modified > m_newestUnused)
            return false;
        if (entry->type() == EntryType::Other || isLockFile(*entry))
            return false;
        if (entry->type() == EntryType::RegularFile && lockQuestionsLeft > 0) {
            --lockQuestionsLeft;
            const auto attributes = attributesOfItem(entry->path());
            if (!attributes.exists || attributes.isLocked)
                return false;
        }
    }
    return isReadable;
}

} // namespace Korvane
