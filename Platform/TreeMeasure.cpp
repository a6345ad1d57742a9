// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TreeMeasure.h"

#include "Platform/Checked.h"
#include "Platform/Walking/DescriptorCache.h"
#include "Platform/Walking/DirectoryReader.h"
#include "Platform/Walking/ReaderDemand.h"
#include "Platform/Walking/ReaderPool.h"
#include "Platform/Walking/ReadingScope.h"
#include "Platform/Walking/WalkFolder.h"

#include <condition_variable>
#include <iterator>
#include <mutex>
#include <vector>

namespace Korvane {

namespace {

using Listing = DescriptorCache::Listing;
using Folders = std::vector<WalkFolderReference>;

/// How long the caller sleeps at most before it looks whether it was cancelled.
constexpr std::chrono::milliseconds cancellationInterval{ 20 };

/// How many entries are read between two looks at the same; on a slow disk one entry may take milliseconds.
constexpr std::uint32_t entriesBetweenLooks = 8;

/// The sum over one tree: each reader works down its own stack of folders, last in first out, and gives away the
/// older half, where the large subtrees are, when nobody has anything left to take.
class TreeSum final : public ReaderJob, public std::enable_shared_from_this<TreeSum> {
public:
    explicit TreeSum(Cancellation cancellation)
        : m_cancellation(std::move(cancellation))
    {
    }

    std::int64_t measure(const std::string& path);
    void help() override;

private:
    void drain(Folders& own);
    void readPart(const WalkFolderReference& folder, Folders& own, DirectoryReader& reader, std::int64_t& sum);
    void addEntries(const WalkFolderReference& folder, int descriptor, Folders& own, DirectoryReader& reader,
        std::int64_t& sum) const;
    void goOnLater(const WalkFolderReference& folder, Folders& own, const DirectoryReader& reader);
    bool takeShared(Folders& own);
    bool isAskedToShare();
    void share(Folders& own, std::size_t count);

    Cancellation m_cancellation;
    DescriptorCache m_descriptors; // Before the folders, which give their descriptors back to it.
    ReaderDemand m_demand;
    std::atomic<std::size_t> m_sharedCount{ 0 };

    std::mutex m_mutex;
    std::condition_variable m_changed; // Only the caller of measure() waits for it.
    Folders m_shared;
    std::size_t m_working = 0; // Threads that may still find folders.
    std::int64_t m_total = 0;
};

std::int64_t TreeSum::measure(const std::string& path)
{
    auto root = WalkFolder::makeRoot(m_descriptors, path);
    if (m_descriptors.openRoot(*root))
        return 0;
    Folders own;
    own.push_back(std::move(root));
    m_working = 1;
    while (true) {
        drain(own);
        std::unique_lock lock(m_mutex);
        while (m_working > 0 && m_shared.empty() && !m_cancellation.isCancelled())
            m_changed.wait_for(lock, cancellationInterval);
        m_cancellation.throwIfCancelled();
        if (m_shared.empty())
            return m_total;
        ++m_working;
    }
}

void TreeSum::help()
{
    {
        const std::lock_guard lock(m_mutex);
        ++m_working;
    }
    Folders own;
    drain(own);
    m_demand.leave();
}

/// Reads folders until none is left to take. The thread was counted as working, and is not any more afterwards.
void TreeSum::drain(Folders& own)
{
    const ReadingScope reading;
    DirectoryReader reader;
    std::int64_t sum = 0;
    while (!m_cancellation.isCancelled() && (!own.empty() || takeShared(own))) {
        const auto folder = std::move(own.back());
        own.pop_back();
        readPart(folder, own, reader, sum);
        if (own.size() > 1 && isAskedToShare())
            share(own, own.size() / 2);
    }
    const std::lock_guard lock(m_mutex);
    m_total = checkedAdd(m_total, sum);
    if (--m_working == 0)
        m_changed.notify_one();
}

/// Adds the files of a folder and puts its subfolders on the stack; a long listing is left to be gone on with.
void TreeSum::readPart(const WalkFolderReference& folder, Folders& own, DirectoryReader& reader, std::int64_t& sum)
{
    std::error_code error;
    const int descriptor = m_descriptors.pin(*folder, error);
    if (descriptor < 0)
        return;
    const auto before = own.size();
    bool isLong = false;
    for (int count = 1; !isLong && !m_cancellation.isCancelled() && reader.list(descriptor, error); ++count) {
        isLong = reader.isNearlyFull() || count == DirectoryReader::listingsOfALongPart;
        if (isLong)
            goOnLater(folder, own, reader);
        addEntries(folder, descriptor, own, reader, sum);
    }
    const bool isWanted = isLong || own.size() > before;
    const auto keep = isWanted ? DescriptorCache::Keep::Yes : DescriptorCache::Keep::No;
    m_descriptors.unpin(*folder, isLong ? Listing::GoesOn : Listing::AtEnd, keep);
}

void TreeSum::addEntries(
    const WalkFolderReference& folder, int descriptor, Folders& own, DirectoryReader& reader, std::int64_t& sum) const
{
    ListedEntry entry;
    for (std::uint32_t count = 0; reader.next(entry); ++count) {
        if (count % entriesBetweenLooks == 0 && m_cancellation.isCancelled())
            return;
        if (entry.type == EntryType::RegularFile || entry.type == EntryType::Unknown)
            DirectoryReader::readValues(descriptor, DirectoryReader::Wanted::AllocatedSize, entry);
        if (entry.type == EntryType::Directory)
            own.push_back(WalkFolder::makeChild(folder, entry.name));
        else if (entry.type == EntryType::RegularFile && entry.hasValues)
            sum = checkedAdd(sum, entry.allocatedSize);
    }
}

/// Another reader may list the next part of a long folder while this one measures what it has listed.
void TreeSum::goOnLater(const WalkFolderReference& folder, Folders& own, const DirectoryReader& reader)
{
    m_descriptors.markPosition(*folder, reader);
    if (!isAskedToShare()) {
        own.push_back(folder);
        return;
    }
    Folders rest;
    rest.push_back(folder);
    share(rest, 1);
}

/// Takes some of the folders that others gave away.
bool TreeSum::takeShared(Folders& own)
{
    const std::lock_guard lock(m_mutex);
    if (m_shared.empty())
        return false;
    const auto count = static_cast<std::ptrdiff_t>((m_shared.size() + 3) / 4);
    own.assign(std::make_move_iterator(m_shared.end() - count), std::make_move_iterator(m_shared.end()));
    m_shared.resize(m_shared.size() - static_cast<std::size_t>(count));
    m_sharedCount.store(m_shared.size(), std::memory_order_relaxed);
    return true;
}

/// Whether to give folders away: what was given must be gone first, but readers are invited as long as there is any.
bool TreeSum::isAskedToShare()
{
    const bool isInvited = m_demand.takeInvitation();
    if (isInvited)
        ReaderPool::shared().invite(shared_from_this());
    return m_sharedCount.load(std::memory_order_relaxed) == 0 && (isInvited || m_demand.hasReaders());
}

/// Gives the oldest `count` folders of a reader to whoever is idle.
void TreeSum::share(Folders& own, std::size_t count)
{
    const auto end = own.begin() + static_cast<std::ptrdiff_t>(count);
    {
        const std::lock_guard lock(m_mutex);
        m_shared.insert(m_shared.end(), std::make_move_iterator(own.begin()), std::make_move_iterator(end));
        m_sharedCount.store(m_shared.size(), std::memory_order_relaxed);
    }
    m_changed.notify_one();
    own.erase(own.begin(), end);
}

} // namespace

std::int64_t totalAllocatedSize(const std::filesystem::path& path, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    const ReadingScope reading;
    const auto item = DirectoryReader::statusOfItem(path.native());
    if (!item.hasValues)
        return 0;
    if (item.type != EntryType::Directory)
        return item.allocatedSize;
    return std::make_shared<TreeSum>(cancellation)->measure(path.native());
}

} // namespace Korvane
