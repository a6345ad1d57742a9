// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"
#include "Platform/TreeMeasure.h"
#include "Platform/Walking/DirectoryReader.h"
#include "Tests/Platform/Walking/BeforeValues.h"
#include "Tests/Platform/Walking/RandomTree.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>

namespace {

/// Counts the files that are asked for their values, and cancels at one of them.
struct Countdown {
    std::atomic<int> untilCancel{ 0 };
    std::atomic<int> afterwards{ 0 };
    std::atomic<const Korvane::Cancellation*> cancellation{ nullptr };

    void count()
    {
        const auto* const token = cancellation.load();
        if (token && untilCancel-- == 1)
            token->cancel();
        else if (token && token->isCancelled())
            ++afterwards;
    }
};

Countdown countdown;

} // namespace

namespace Korvane {
namespace {

constexpr int files = 20'000;
constexpr int filesUntilCancel = 100;

/// What readers may still do once a walk is cancelled, by count instead of by clock.
class WalkCancellationTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (int index = 0; index < files; ++index)
            writeFile(m_folder / std::to_string(index), "");
        countdown.untilCancel = filesUntilCancel;
        countdown.afterwards = 0;
        countdown.cancellation = &m_cancellation;
        setBeforeValues([] { countdown.count(); });
    }

    void TearDown() override
    {
        setBeforeValues(nullptr);
        countdown.cancellation = nullptr;
    }

    /// Each reader, and the thread that waits for them, looks at every eighth entry.
    static int mostAfterwards() { return 8 * (static_cast<int>(DirectoryReader::readerCount()) + 1); }

    TemporaryFolder m_folder{ placeForLargeTrees() };
    Cancellation m_cancellation;
};

TEST_F(WalkCancellationTest, MeasuringStopsInTheMiddleOfAFolder)
{
    EXPECT_THROW(totalAllocatedSize(m_folder.path(), m_cancellation), CancellationError);
    EXPECT_LE(countdown.untilCancel, 0);
    EXPECT_LE(countdown.afterwards, mostAfterwards());
}

TEST_F(WalkCancellationTest, WalkStopsInTheMiddleOfAFolder)
{
    const auto walkAll = [&] {
        DirectoryEnumerator walk(m_folder.path(), {}, m_cancellation);
        while (walk.next()) { }
    };
    EXPECT_THROW(walkAll(), CancellationError);
    EXPECT_LE(countdown.untilCancel, 0);
    EXPECT_LE(countdown.afterwards, mostAfterwards());
}

} // namespace
} // namespace Korvane
