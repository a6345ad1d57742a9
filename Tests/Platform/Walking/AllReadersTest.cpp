// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"
#include "Platform/TreeMeasure.h"
#include "Platform/Walking/DirectoryReader.h"
#include "Tests/Platform/Walking/BeforeValues.h"
#include "Tests/Platform/Walking/PlainWalk.h"
#include "Tests/Platform/Walking/RandomTree.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <thread>

#include <pthread.h>

namespace Korvane {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

bool isReader()
{
    char name[16] = {};
    pthread_getname_np(pthread_self(), name, sizeof name);
    return std::string_view(name) == "korvane-reader";
}

/// Holds every reader in the middle of a folder until all of them are there.
class Gathering {
public:
    void begin(const Cancellation* cancelWhenComplete)
    {
        const std::lock_guard lock(m_mutex);
        m_readers.clear();
        m_cancelWhenComplete = cancelWhenComplete;
        m_deadline = steady_clock::now() + std::chrono::seconds(60);
        m_isOver = false;
    }

    /// Lets everybody go on; tells how many readers came.
    std::size_t end()
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
        m_changed.notify_all();
        return m_readers.size();
    }

    void arrive()
    {
        std::unique_lock lock(m_mutex);
        if (m_isOver)
            return;
        if (!isReader()) {
            // Whoever started the walk invites the readers between folders, and must leave something for them to read.
            m_changed.wait_for(lock, milliseconds(1), [this] { return m_isOver; });
            return;
        }
        m_readers.insert(std::this_thread::get_id());
        if (m_readers.size() == DirectoryReader::readerCount()) {
            if (m_cancelWhenComplete)
                m_cancelWhenComplete->cancel();
            m_isOver = true;
            m_changed.notify_all();
        }
        m_changed.wait_until(lock, m_deadline, [this] { return m_isOver; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<std::thread::id> m_readers;
    const Cancellation* m_cancelWhenComplete = nullptr;
    steady_clock::time_point m_deadline;
    bool m_isOver = true;
};

Gathering gathering;

constexpr int folders = 300;
constexpr int filesPerFolder = 10;

class AllReadersTest : public testing::Test {
protected:
    void SetUp() override
    {
        makeWideTree(m_root);
        setBeforeValues([] { gathering.arrive(); });
    }

    void TearDown() override
    {
        gathering.end();
        setBeforeValues(nullptr);
    }

    static void makeWideTree(const std::filesystem::path& root)
    {
        for (int folder = 0; folder < folders; ++folder) {
            const auto place = root / std::to_string(folder);
            std::filesystem::create_directories(place);
            for (int file = 0; file < filesPerFolder; ++file)
                writeFile(place / std::to_string(file), "x");
        }
    }

    static int countEntries(const std::filesystem::path& root, const Cancellation& cancellation = {})
    {
        DirectoryEnumerator walk(root, {}, cancellation);
        int count = 0;
        while (walk.next())
            ++count;
        return count;
    }

    static constexpr int entries = folders * (filesPerFolder + 1);

    TemporaryFolder m_folder{ placeForLargeTrees() };
    std::filesystem::path m_root = m_folder / "wide";
    Cancellation m_cancellation;
};

TEST_F(AllReadersTest, ReadFoldersOfOneWalkAtTheSameTime)
{
    gathering.begin(nullptr);
    EXPECT_EQ(countEntries(m_root), entries);
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
}

TEST_F(AllReadersTest, MeasureOneTreeAtTheSameTime)
{
    const auto expected = allocatedPlainly(m_root);
    gathering.begin(nullptr);
    EXPECT_EQ(totalAllocatedSize(m_root), expected);
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
}

TEST_F(AllReadersTest, AreSharedByWalksOfSeveralRoots)
{
    const auto other = m_folder / "other";
    makeWideTree(other);
    const auto size = allocatedPlainly(m_root), otherSize = allocatedPlainly(other);
    gathering.begin(nullptr);
    std::thread first([&] { EXPECT_EQ(countEntries(m_root), entries); });
    std::thread second([&] { EXPECT_EQ(countEntries(other), entries); });
    std::thread third([&] { EXPECT_EQ(totalAllocatedSize(m_root), size); });
    EXPECT_EQ(totalAllocatedSize(other), otherSize);
    first.join();
    second.join();
    third.join();
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
}

TEST_F(AllReadersTest, StopAWalkThatIsCancelledWhileAllAreReading)
{
    gathering.begin(&m_cancellation);
    EXPECT_THROW(countEntries(m_root, m_cancellation), CancellationError);
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
    EXPECT_EQ(countEntries(m_root), entries);
}

TEST_F(AllReadersTest, StopMeasuringThatIsCancelledWhileAllAreReading)
{
    gathering.begin(&m_cancellation);
    EXPECT_THROW(totalAllocatedSize(m_root, m_cancellation), CancellationError);
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
    EXPECT_EQ(totalAllocatedSize(m_root), allocatedPlainly(m_root));
}

TEST_F(AllReadersTest, GoOnWithOtherWalksWhenOneIsCancelled)
{
    const auto other = m_folder / "other";
    makeWideTree(other);
    gathering.begin(&m_cancellation);
    std::thread uncancelled([&] { EXPECT_EQ(countEntries(other), entries); });
    EXPECT_THROW(countEntries(m_root, m_cancellation), CancellationError);
    uncancelled.join();
    EXPECT_EQ(gathering.end(), DirectoryReader::readerCount());
}

} // namespace
} // namespace Korvane
