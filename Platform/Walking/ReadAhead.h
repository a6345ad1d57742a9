// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Walking/DescriptorCache.h"
#include "Platform/Walking/DirectoryReader.h"
#include "Platform/Walking/ListingPart.h"
#include "Platform/Walking/ReaderDemand.h"
#include "Platform/Walking/ReaderJob.h"
#include "Platform/Walking/WalkRules.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Korvane {

/// The listings of one walk: read ahead by readers of the pool, handed to the consumer in the order of the walk.
///
/// All parts not read yet stand in one list in that order, and readers take the first of them: what is ready is what
/// the consumer needs next, as far as the room for reading ahead allows. The consumer reads by itself what nobody has
/// begun to read, so it never depends on a reader being there.
class ReadAhead final : public ReaderJob, public std::enable_shared_from_this<ReadAhead> {
public:
    using Part = std::shared_ptr<ListingPart>;

    ReadAhead(const EnumerationOptions& options, Cancellation cancellation);
    ~ReadAhead() override;

    /// The first part of the walk's root. Consumer's thread, like the rest.
    Part begin(const std::string& root);
    /// Makes sure that a part is read; throws CancellationError.
    void obtain(const Part& part);
    /// Passes over parts that nobody wants any more, and everything below them.
    void discard(std::vector<Part> parts);

    /// Reads ahead, on a thread of the pool.
    void help() override;

private:
    /// What one thread reads with.
    struct Desk {
        DirectoryReader reader;
        std::vector<ListingPart::Entry> entries;
        std::string names;
        std::vector<Part> subfolders;
    };

    Part claim(ListingPart& part);
    Part takeFirst();
    void read(ListingPart& part, Desk& desk);
    void handOverRest(ListingPart& part, const DirectoryReader& reader);
    bool addEntries(ListingPart& part, int descriptor, Desk& desk);
    void addEntry(ListingPart& part, int descriptor, ListedEntry& listed, Desk& desk);
    void publish(ListingPart& part, std::size_t bytesAhead);
    void insert(ListingPart& part, ListingPart* before, ListingPart* after);
    void unlink(ListingPart& part);
    void inviteReader();
    void settle();

    const WalkRules m_rules;
    const Cancellation m_cancellation;
    DescriptorCache m_descriptors;
    ReaderDemand m_demand;
    std::unique_ptr<Desk> m_consumersDesk;

    std::mutex m_mutex;
    std::condition_variable m_partRead; // Only the consumer waits for it.
    const ListingPart* m_awaited = nullptr;
    ListingPart* m_first = nullptr; // Of the parts that are unread or being read.
    std::size_t m_unread = 0;
    std::size_t m_bytesAhead = 0;
    std::size_t m_bytesTaken = 0; // By the consumer, and not yet taken off from those above; the consumer's alone.
};

} // namespace Korvane
