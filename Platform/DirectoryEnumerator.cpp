// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"

#include "Platform/Walking/ReadAhead.h"
#include "Platform/Walking/WalkFolder.h"

#include <utility>
#include <vector>

namespace Korvane {

/// The consumer's side of a walk: where it stands in each folder from the root down to the current entry.
class DirectoryEnumerator::Walk {
public:
    Walk(const std::filesystem::path& root, EnumerationOptions options, Cancellation cancellation)
        : m_errorHandler(std::move(options.errorHandler))
        , m_cancellation(cancellation)
        , m_ahead(std::make_shared<ReadAhead>(options, std::move(cancellation)))
        , m_entered(m_ahead->begin(root.native()))
    {
    }
    ~Walk() { stop(); }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    const DirectoryEntry* next();
    void skipDescendants();

private:
    /// One folder on the way down.
    struct Level {
        ReadAhead::Part part;
        std::size_t entry = 0;
        std::size_t subfolder = 0;
    };

    void enter(ReadAhead::Part part);
    void leavePart();
    void deliver(Level& level);
    void stop();

    std::function<OnError(const FileError&)> m_errorHandler;
    Cancellation m_cancellation;
    std::shared_ptr<ReadAhead> m_ahead;
    std::vector<Level> m_levels;
    ReadAhead::Part m_entered; // The folder given last, which the next step goes into.
    DirectoryEntry m_entry;
};

const DirectoryEntry* DirectoryEnumerator::Walk::next()
{
    m_cancellation.throwIfCancelled();
    if (m_entered)
        enter(std::move(m_entered));
    while (!m_levels.empty()) {
        auto& level = m_levels.back();
        if (level.entry < level.part->entries.size()) {
            deliver(level);
            return &m_entry;
        }
        leavePart();
    }
    // Readers leave off when cancelled; what they left out is not to be taken for the end.
    m_cancellation.throwIfCancelled();
    return nullptr;
}

void DirectoryEnumerator::Walk::enter(ReadAhead::Part part)
{
    m_entered = nullptr;
    m_levels.push_back({ std::move(part) });
    m_ahead->obtain(m_levels.back().part);
}

/// Goes on with the rest of the folder, or with the folder above.
void DirectoryEnumerator::Walk::leavePart()
{
    const auto part = std::move(m_levels.back().part);
    m_levels.pop_back();
    if (part->rest)
        enter(std::move(part->rest));
    else if (part->error && m_errorHandler
        && m_errorHandler(FileError(part->folder->path(), part->error)) == OnError::Stop)
        stop();
}

void DirectoryEnumerator::Walk::deliver(Level& level)
{
    using namespace std::chrono;
    const auto& part = *level.part;
    const auto& listed = part.entries[level.entry++];
    m_entry.m_name = part.nameOf(listed);
    m_entry.m_folder = part.folder.get();
    m_entry.m_passedOver = listed.passedOver;
    m_entry.m_type = listed.type;
    m_entry.m_isPackage = listed.isPackage;
    m_entry.m_hasValues = listed.hasValues;
    m_entry.m_values = {};
    if (listed.isSizeSet)
        m_entry.m_values.totalFileAllocatedSize = listed.allocatedSize;
    if (listed.areValuesSet) {
        m_entry.m_values.fileSize = listed.fileSize;
        m_entry.m_values.contentModificationDate = sys_time<nanoseconds>(nanoseconds(listed.modified));
    }
    if (listed.isEntered)
        m_entered = std::move(level.part->subfolders[level.subfolder++]);
}

void DirectoryEnumerator::Walk::skipDescendants()
{
    const bool isBeforeFirst = m_entered && !m_entered->folder->parent();
    if (m_entered && !isBeforeFirst)
        m_ahead->discard({ std::exchange(m_entered, nullptr) });
}

void DirectoryEnumerator::Walk::stop()
{
    std::vector<ReadAhead::Part> parts;
    for (auto& level : m_levels)
        parts.push_back(std::move(level.part));
    parts.push_back(std::move(m_entered));
    m_levels.clear();
    m_ahead->discard(std::move(parts));
}

DirectoryEnumerator::DirectoryEnumerator(
    const std::filesystem::path& root, EnumerationOptions options, const Cancellation& cancellation)
    : m_walk(std::make_unique<Walk>(root, std::move(options), cancellation))
{
}
DirectoryEnumerator::~DirectoryEnumerator() = default;
DirectoryEnumerator::DirectoryEnumerator(DirectoryEnumerator&&) noexcept = default;
DirectoryEnumerator& DirectoryEnumerator::operator=(DirectoryEnumerator&&) noexcept = default;
const DirectoryEntry* DirectoryEnumerator::next() { return m_walk->next(); }
void DirectoryEnumerator::skipDescendants() { m_walk->skipDescendants(); }

} // namespace Korvane
