// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/ReadAhead.h"

#include "Platform/PackageExtensions.h"
#include "Platform/Walking/ReaderPool.h"
#include "Platform/Walking/ReadingScope.h"
#include "Platform/Walking/WalkFolder.h"

#include <chrono>
#include <iterator>
#include <utility>

namespace Korvane {

namespace {

using Listing = DescriptorCache::Listing;
using State = ListingPart::State;

/// How much is read ahead at most; enough for some 100,000 entries.
constexpr std::size_t roomForReadingAhead = std::size_t{ 8 } << 20;

/// How much the consumer takes before it tells, so that it does not lock for every folder.
constexpr std::size_t bytesBetweenSettlements = std::size_t{ 64 } << 10;

/// What a subfolder that nobody has read yet takes, with its name and what manages it.
constexpr std::size_t bytesPerSubfolder = 320;

std::size_t sizeOf(const ListingPart& part)
{
    return sizeof part + part.names.size() + part.entries.size() * sizeof(ListingPart::Entry)
        + part.subfolders.size() * bytesPerSubfolder;
}

/// How long the consumer sleeps at most before it looks whether it was cancelled.
constexpr std::chrono::milliseconds cancellationInterval{ 20 };

/// How many entries are read between two looks at the same; on a slow disk one entry may take milliseconds.
constexpr std::uint32_t entriesBetweenLooks = 8;

/// Counts one more file that is not delivered, together with those just before it.
void passOver(std::vector<ListingPart::Entry>& entries)
{
    if (entries.empty() || entries.back().passedOver == 0) {
        ListingPart::Entry run{};
        run.type = EntryType::RegularFile;
        run.hasValues = true;
        entries.push_back(run);
    }
    ++entries.back().passedOver;
}

} // namespace

ReadAhead::ReadAhead(const EnumerationOptions& options, Cancellation cancellation)
    : m_rules(options)
    , m_cancellation(std::move(cancellation))
    , m_consumersDesk(std::make_unique<Desk>())
{
}

ReadAhead::~ReadAhead() = default;

ReadAhead::Part ReadAhead::begin(const std::string& root)
{
    const ReadingScope reading;
    auto part = std::make_shared<ListingPart>(WalkFolder::makeRoot(m_descriptors, root));
    part->error = m_descriptors.openRoot(*part->folder);
    if (part->error) {
        part->state = State::Read;
        return part;
    }
    const std::lock_guard lock(m_mutex);
    insert(*part, nullptr, nullptr);
    m_unread = 1;
    return part;
}

void ReadAhead::obtain(const Part& part)
{
    if (part->state.load(std::memory_order_acquire) == State::Read) {
        m_bytesTaken += std::exchange(part->bytesAhead, 0);
        if (m_bytesTaken >= bytesBetweenSettlements) {
            const std::lock_guard lock(m_mutex);
            settle();
        }
        return;
    }
    std::unique_lock lock(m_mutex);
    while (part->state != State::Read) {
        m_cancellation.throwIfCancelled();
        const bool isFree = part->state == State::Unread;
        if (const auto mine = isFree ? claim(*part) : takeFirst()) {
            const ReadingScope reading;
            lock.unlock();
            read(*mine, *m_consumersDesk);
            lock.lock();
            publish(*mine, isFree ? 0 : sizeOf(*mine));
        } else {
            m_awaited = part.get();
            m_partRead.wait_for(lock, cancellationInterval);
            m_awaited = nullptr;
        }
    }
    m_bytesTaken += std::exchange(part->bytesAhead, 0);
    settle();
}

/// Gives the room that the consumer has freed back to the readers.
void ReadAhead::settle()
{
    m_bytesAhead -= std::exchange(m_bytesTaken, 0);
    inviteReader();
}

void ReadAhead::discard(std::vector<Part> parts)
{
    const std::lock_guard lock(m_mutex);
    while (!parts.empty()) {
        const auto part = std::move(parts.back());
        parts.pop_back();
        if (!part)
            continue;
        if (part->state == State::Unread)
            --m_unread;
        if (part->state == State::Unread || part->state == State::Reading)
            unlink(*part);
        if (part->state == State::Read) {
            m_bytesAhead -= std::exchange(part->bytesAhead, 0);
            std::move(part->subfolders.begin(), part->subfolders.end(), std::back_inserter(parts));
            part->subfolders.clear();
        }
        if (part->rest)
            parts.push_back(std::move(part->rest));
        part->state = State::Discarded;
        part->isUnwanted = true;
    }
}

void ReadAhead::help()
{
    const ReadingScope reading;
    Desk desk;
    std::unique_lock lock(m_mutex);
    while (!ReaderPool::shared().isStopping() && !m_cancellation.isCancelled()) {
        const auto part = takeFirst();
        if (!part)
            break;
        lock.unlock();
        read(*part, desk);
        lock.lock();
        publish(*part, sizeOf(*part));
    }
    m_demand.leave();
}

/// The first part in the order of the walk that nobody reads yet; none when the room for reading ahead is used up.
ReadAhead::Part ReadAhead::takeFirst()
{
    if (m_unread == 0 || m_bytesAhead >= roomForReadingAhead)
        return nullptr;
    auto* part = m_first;
    while (part->state != State::Unread)
        part = part->after;
    return claim(*part);
}

ReadAhead::Part ReadAhead::claim(ListingPart& part)
{
    part.state = State::Reading;
    --m_unread;
    return part.shared_from_this();
}

void ReadAhead::read(ListingPart& part, Desk& desk)
{
    const int descriptor = m_descriptors.pin(*part.folder, part.error);
    if (descriptor < 0)
        return;
    bool isLong = false;
    bool isStopped = false;
    for (int count = 1; !isLong && !isStopped && desk.reader.list(descriptor, part.error); ++count) {
        isLong = desk.reader.isNearlyFull() || count == DirectoryReader::listingsOfALongPart;
        if (isLong)
            handOverRest(part, desk.reader);
        isStopped = !addEntries(part, descriptor, desk);
    }
    part.entries = desk.entries; // Copies that take no more than they need.
    part.names = desk.names;
    part.subfolders.assign(
        std::make_move_iterator(desk.subfolders.begin()), std::make_move_iterator(desk.subfolders.end()));
    const auto keep = isLong || !part.subfolders.empty() ? DescriptorCache::Keep::Yes : DescriptorCache::Keep::No;
    m_descriptors.unpin(*part.folder, isLong ? Listing::GoesOn : Listing::AtEnd, keep);
    desk.entries.clear();
    desk.names.clear();
    desk.subfolders.clear();
}

/// Another reader may list the rest of a long folder while this one reads the values of what it has listed.
void ReadAhead::handOverRest(ListingPart& part, const DirectoryReader& reader)
{
    m_descriptors.markPosition(*part.folder, reader);
    auto rest = std::make_shared<ListingPart>(part.folder);
    const std::lock_guard lock(m_mutex);
    if (part.state == State::Discarded)
        return;
    insert(*rest, &part, part.after);
    ++m_unread;
    part.rest = std::move(rest);
    inviteReader();
}

/// False when nobody wants them any more.
bool ReadAhead::addEntries(ListingPart& part, int descriptor, Desk& desk)
{
    ListedEntry listed;
    for (std::uint32_t count = 0; desk.reader.next(listed); ++count) {
        if (count % entriesBetweenLooks == 0
            && (part.isUnwanted.load(std::memory_order_relaxed) || m_cancellation.isCancelled()))
            return false;
        if (m_rules.isDelivered(listed))
            addEntry(part, descriptor, listed, desk);
    }
    return true;
}

void ReadAhead::addEntry(ListingPart& part, int descriptor, ListedEntry& listed, Desk& desk)
{
    using Wanted = DirectoryReader::Wanted;
    DirectoryReader::readValues(descriptor, m_rules.wantedOf(listed), listed);
    if (m_rules.isPassedOver(listed)) {
        passOver(desk.entries);
        return;
    }
    const auto wanted = m_rules.wantedOf(listed); // By now the type is known.
    const std::string_view name(listed.name);
    ListingPart::Entry entry{};
    entry.allocatedSize = listed.allocatedSize;
    entry.fileSize = listed.fileSize;
    entry.modified = listed.modified;
    entry.nameOffset = static_cast<std::uint32_t>(desk.names.size());
    entry.nameLength = static_cast<std::uint16_t>(name.size());
    entry.type = listed.type;
    entry.hasValues = listed.hasValues;
    entry.isSizeSet = listed.hasValues && wanted != Wanted::Type;
    entry.areValuesSet = listed.hasValues && wanted == Wanted::All;
    if (listed.type == EntryType::Directory) {
        entry.isPackage = listed.isMarkedAsPackage || hasPackageExtension(name);
        entry.isEntered = m_rules.isEntered(*part.folder, name, entry.isPackage);
        if (entry.isEntered)
            desk.subfolders.push_back(std::make_shared<ListingPart>(WalkFolder::makeChild(part.folder, name)));
    }
    desk.names.append(name);
    desk.entries.push_back(entry);
}

/// Makes a part that was read ready for the consumer. `bytesAhead`: what it takes of the room for reading ahead.
void ReadAhead::publish(ListingPart& part, std::size_t bytesAhead)
{
    if (part.state == State::Discarded)
        return;
    part.bytesAhead = bytesAhead;
    m_bytesAhead += bytesAhead;
    for (const auto& subfolder : part.subfolders)
        insert(*subfolder, part.before, &part);
    m_unread += part.subfolders.size();
    unlink(part);
    part.state.store(State::Read, std::memory_order_release);
    inviteReader();
    if (m_awaited == &part)
        m_partRead.notify_one();
}

void ReadAhead::insert(ListingPart& part, ListingPart* before, ListingPart* after)
{
    part.before = before;
    part.after = after;
    (before ? before->after : m_first) = &part;
    if (after)
        after->before = &part;
}

void ReadAhead::unlink(ListingPart& part)
{
    (part.before ? part.before->after : m_first) = part.after;
    if (part.after)
        part.after->before = part.before;
    part.before = part.after = nullptr;
}

/// Readers that left because there was no room come back when half of it is free again, not for every folder.
void ReadAhead::inviteReader()
{
    if (m_unread > 0 && m_bytesAhead < roomForReadingAhead / 2 && m_demand.takeInvitation())
        ReaderPool::shared().invite(shared_from_this());
}

} // namespace Korvane
