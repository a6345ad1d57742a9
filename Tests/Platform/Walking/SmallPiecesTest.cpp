// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"
#include "Platform/TreeMeasure.h"
#include "Platform/Walking/DirectoryReader.h"
#include "Tests/Platform/Walking/PlainWalk.h"
#include "Tests/Platform/Walking/RandomTree.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <string>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Counts the pieces in which folders are listed, makes them as small as those of a network, and cancels at one of
/// them.
struct Pieces {
    std::atomic<long> size{ 1 << 20 }; ///< In bytes, at most.
    std::atomic<int> untilCancel{ 0 };
    std::atomic<int> afterCancel{ 0 };
    std::atomic<const Korvane::Cancellation*> cancellation{ nullptr };
    static thread_local int ofThisThread;

    long list(long room)
    {
        ++ofThisThread;
        const auto* const token = cancellation.load();
        if (token && token->isCancelled())
            ++afterCancel;
        if (token && untilCancel-- == 1)
            token->cancel();
        return std::min(room, size.load());
    }
};

thread_local int Pieces::ofThisThread = 0;
Pieces pieces;

using SystemCall = long(long, ...);

} // namespace

/// Takes the place of the C library's own.
extern "C" long syscall(long number, ...) noexcept
{
    static auto* const original = reinterpret_cast<SystemCall*>(dlsym(RTLD_NEXT, "syscall"));
    std::va_list arguments;
    va_start(arguments, number);
    long value[6];
    for (long& each : value)
        each = va_arg(arguments, long);
    va_end(arguments);
    if (number == SYS_getdents64)
        value[2] = pieces.list(value[2]);
    return original(number, value[0], value[1], value[2], value[3], value[4], value[5]);
}

namespace Korvane {
namespace {

constexpr int files = 20'000;
constexpr int piecesUntilCancel = 10;

/// File systems that list a few entries at a time, such as those of networks.
class SmallPiecesTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (int index = 0; index < files; ++index)
            writeFile(m_folder / "many" / std::to_string(index), "");
        pieces.size = 1024;
        pieces.afterCancel = 0;
    }
    void TearDown() override { pieces.cancellation = nullptr; }

    void cancelAt(int piece) const
    {
        pieces.untilCancel = piece;
        pieces.cancellation = &m_cancellation;
    }
    static int readers() { return static_cast<int>(DirectoryReader::readerCount()) + 1; }

    TemporaryFolder m_folder{ placeForLargeTrees() };
    Cancellation m_cancellation;
};

TEST_F(SmallPiecesTest, MeasuringListsNoFurtherOnceCancelled)
{
    cancelAt(piecesUntilCancel);
    EXPECT_THROW(totalAllocatedSize(m_folder.path(), m_cancellation), CancellationError);
    EXPECT_LE(pieces.afterCancel, readers());
}

TEST_F(SmallPiecesTest, WalkListsNoFurtherOnceCancelled)
{
    cancelAt(piecesUntilCancel);
    const auto walkAll = [&] {
        DirectoryEnumerator walk(m_folder.path(), {}, m_cancellation);
        while (walk.next()) { }
    };
    EXPECT_THROW(walkAll(), CancellationError);
    EXPECT_LE(pieces.afterCancel, readers());
}

TEST_F(SmallPiecesTest, EntriesAreDeliveredBeforeTheEndOfTheirFolderIsKnown)
{
    constexpr int allPieces = files * 24 / 1024;
    const int before = Pieces::ofThisThread;
    DirectoryEnumerator walk(m_folder / "many", {});
    ASSERT_NE(walk.next(), nullptr);
    EXPECT_LT(Pieces::ofThisThread - before, allPieces / 2);
    EXPECT_EQ(walked(m_folder.path()), walkedPlainly(m_folder.path()));
}

TEST_F(SmallPiecesTest, WalkCancelledInItsLastFolderDoesNotSeemComplete)
{
    const TemporaryFolder folder;
    writeFile(folder / "last/file", "x");
    // Each folder is listed twice: for what it holds, and to see that this was all.
    cancelAt(3);
    DirectoryEnumerator walk(folder.path(), {}, m_cancellation);
    ASSERT_NE(walk.next(), nullptr);
    EXPECT_THROW((void)walk.next(), CancellationError);
}

} // namespace
} // namespace Korvane
