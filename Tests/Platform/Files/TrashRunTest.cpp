// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/TrashFixture.h"

#include <iterator>
#include <thread>

namespace Korvane {
namespace {

/// Several items one after another with their folders kept open: whatever is swapped in between, each goes where it
/// would go alone.
class TrashRunTest : public TrashFixture {
protected:
    void SetUp() override
    {
        for (const char* const name : { "first", "second", "third" })
            writeFile(home("folder") / name, name);
        m_run = m_files->beginTrashing();
        ASSERT_EQ(trashing(home("folder/first")), "");
    }

    std::filesystem::path trash(const std::string& name) const { return home(".local/share/Trash") / name; }

    static std::size_t openDescriptors()
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
    }

    std::shared_ptr<void> m_run;
};

TEST_F(TrashRunTest, AllItemsAndTheirRecordsArrive)
{
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_EQ(trashing(home("folder")), "");
    EXPECT_EQ(readFile(trash("files/second")), "second");
    EXPECT_EQ(readFile(trash("files/folder/third")), "third");
    EXPECT_TRUE(isThere(trash("info/first.trashinfo")));
    EXPECT_TRUE(isThere(trash("info/folder.trashinfo")));
}

TEST_F(TrashRunTest, AnotherTrashInPlaceOfTheFirstIsTheOneThatIsUsed)
{
    std::filesystem::rename(trash(""), home(".local/share/old"));
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_EQ(readFile(trash("files/second")), "second");
    EXPECT_TRUE(isThere(trash("info/second.trashinfo")));
    EXPECT_FALSE(isThere(home(".local/share/old/files/second")));
    EXPECT_FALSE(isThere(home(".local/share/old/info/second.trashinfo")));
}

TEST_F(TrashRunTest, RecordsGoBesideTheFilesThatTheyBelongTo)
{
    std::filesystem::rename(trash("info"), home("info"));
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_TRUE(isThere(trash("info/second.trashinfo")));
    std::filesystem::rename(trash("files"), home("files"));
    EXPECT_EQ(trashing(home("folder/third")), "");
    EXPECT_EQ(readFile(trash("files/third")), "third");
    EXPECT_FALSE(isThere(home("files/third")));
}

TEST_F(TrashRunTest, ALinkPutInTheTrashIsNotFollowed)
{
    std::filesystem::rename(trash("files"), home("files"));
    std::filesystem::create_directory_symlink(home("files"), trash("files"));
    EXPECT_NE(trashing(home("folder/second")), "");
    EXPECT_EQ(readFile(home("folder/second")), "second");
    EXPECT_FALSE(isThere(trash("info/second.trashinfo")));
}

TEST_F(TrashRunTest, AnotherFolderOfTheSameNameIsTheOneThatIsMeant)
{
    std::filesystem::rename(home("folder"), home("moved"));
    EXPECT_EQ(trashing(home("folder/second")), "No such file or directory");
    writeFile(home("folder/second"), "another");
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_EQ(readFile(trash("files/second")), "another");
    EXPECT_EQ(readFile(home("moved/second")), "second");
}

TEST_F(TrashRunTest, AFailureInBetweenChangesNothingForTheNext)
{
    EXPECT_EQ(trashing(home("folder/none")), "No such file or directory");
    EXPECT_NE(trashing(home("")), "");
    EXPECT_NE(trashing(trash("files")), "");
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_EQ(readFile(trash("files/second")), "second");
}

TEST_F(TrashRunTest, NothingStaysOpenAfterIt)
{
    const std::size_t during = openDescriptors();
    m_run.reset();
    const std::size_t after = openDescriptors();
    EXPECT_LT(after, during);
    EXPECT_EQ(trashing(home("folder/second")), "");
    EXPECT_EQ(openDescriptors(), after);
}

TEST_F(TrashRunTest, ARunWithinItIsTheSame)
{
    const std::size_t before = openDescriptors();
    {
        const auto inner = m_files->beginTrashing();
        EXPECT_EQ(trashing(home("folder/second")), "");
        EXPECT_EQ(openDescriptors(), before);
    }
    EXPECT_EQ(trashing(home("folder/third")), "");
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(TrashRunTest, TwoThreadsShareIt)
{
    constexpr int items = 200;
    for (int item = 0; item < items; ++item)
        writeFile(home("many") / std::to_string(item), "x");
    const auto work = [&](int start) {
        for (int item = start; item < items; item += 2)
            m_files->trashItem(home("many") / std::to_string(item));
    };
    std::thread other(work, 1);
    work(0);
    other.join();
    for (int item = 0; item < items; ++item) {
        EXPECT_TRUE(isThere(trash("files") / std::to_string(item)));
        EXPECT_TRUE(isThere(trash("info") / (std::to_string(item) + ".trashinfo")));
    }
}

} // namespace
} // namespace Korvane
