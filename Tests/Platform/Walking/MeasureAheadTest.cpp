// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/MeasureAhead.h"

#include "Platform/TreeMeasure.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace Korvane {

namespace {

class MeasureAheadTest : public testing::Test {
protected:
    /// Trees that all differ in size, one that does not exist, and a plain file.
    std::vector<std::filesystem::path> makeTrees(int count) const
    {
        std::vector<std::filesystem::path> trees;
        for (int tree = 0; tree < count; ++tree) {
            trees.push_back(folder / std::to_string(tree));
            for (int file = 0; file <= tree % 40; ++file)
                writeFile(trees.back() / std::to_string(file % 3) / std::to_string(file), std::string(5000, 'm'));
        }
        trees.insert(trees.begin() + count / 2, folder / "missing");
        trees.push_back(folder / "0/0/0");
        return trees;
    }

    TemporaryFolder folder;
};

} // namespace

TEST_F(MeasureAheadTest, AnswersInTheOrderOfThePathsWhatMeasuringOneByOneAnswers)
{
    const auto trees = makeTrees(120);
    for (int round = 0; round < 5; ++round) {
        MeasureAhead sizes(trees, {});
        for (const auto& tree : trees)
            EXPECT_EQ(sizes.next(), totalAllocatedSize(tree)) << tree;
    }
}

TEST_F(MeasureAheadTest, LooksOnlyALittleAhead)
{
    const auto trees = makeTrees(10);
    MeasureAhead sizes(trees, {});
    EXPECT_GT(sizes.next(), 0);
    // One that changes long before its turn counts as it is then.
    std::filesystem::remove_all(trees.at(8));
    for (std::size_t index = 1; index < 8; ++index)
        (void)sizes.next();
    EXPECT_EQ(sizes.next(), 0);
}

TEST_F(MeasureAheadTest, NothingToMeasureIsNoTrouble)
{
    const MeasureAhead none({}, {});
    const auto trees = makeTrees(20);
    const MeasureAhead unasked(trees, {});
    MeasureAhead givenUp(trees, {});
    EXPECT_GT(givenUp.next(), 0);
}

TEST_F(MeasureAheadTest, CancelIsAnsweredWhateverIsMeasuredAhead)
{
    const auto trees = makeTrees(60);
    for (std::size_t answered = 0; answered < trees.size(); answered += 7) {
        const Cancellation cancellation;
        MeasureAhead sizes(trees, cancellation);
        for (std::size_t index = 0; index < answered; ++index)
            (void)sizes.next();
        cancellation.cancel();
        EXPECT_THROW((void)sizes.next(), CancellationError);
    }
}

} // namespace Korvane
