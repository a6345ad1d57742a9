// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/TrashVolumesFixture.h"
#include "Tests/Support/ChildProcess.h"

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

namespace Korvane {
namespace {

using TrashVolumesTest = TrashVolumesFixture;

TEST_F(TrashVolumesTest, TheRulesHoldAtTheTopOfAVolume) { expectRulesKept(); }

TEST_F(TrashVolumesTest, ARecordThatCannotBeWrittenLeavesTheItemWhereItWas)
{
    writeFile(home("item"), "content");
    EXPECT_EQ(runInChild([&] {
        const rlimit none{ 0, 0 };
        std::signal(SIGXFSZ, SIG_IGN);
        return setrlimit(RLIMIT_FSIZE, &none) == 0 ? trashing(home("item")) : "no limit could be set";
    }),
        "File too large");
    EXPECT_EQ(readFile(home("item")), "content");
    EXPECT_EQ(m_trash.pairs(), "0");
}

TEST_F(TrashVolumesTest, AnotherVolumesItemGoesToItsOwnTrash)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        const auto moved = m_files->trashItem(m_volume / "folder/item");
        return moved.native() + " " + ownTrash().originalPath("item") + " " + readFile(moved) + " "
            + std::to_string(modeOf(ownTrash().path));
    }),
        m_volume.native() + "/.Trash-0/files/item folder/item content " + std::to_string(0700));
    EXPECT_FALSE(isThere(m_trash.path));
}

TEST_F(TrashVolumesTest, ThePreparedTrashIsUsedWhenItIsSticky)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        std::filesystem::create_directory(m_volume / ".Trash");
        chmod((m_volume / ".Trash").c_str(), 01777);
        m_files->trashItem(m_volume / "folder/item");
        return TrashView{ m_volume / ".Trash/0" }.originalPath("item");
    }),
        "folder/item");
}

TEST_F(TrashVolumesTest, APreparedTrashWithoutTheStickyBitIsNotUsed)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        std::filesystem::create_directory(m_volume / ".Trash");
        chmod((m_volume / ".Trash").c_str(), 0777);
        m_files->trashItem(m_volume / "folder/item");
        return ownTrash().originalPath("item") + std::to_string(std::filesystem::is_empty(m_volume / ".Trash"));
    }),
        "folder/item1");
}

TEST_F(TrashVolumesTest, APreparedTrashThatIsALinkIsNotUsed)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), m_volume / ".Trash");
        m_files->trashItem(m_volume / "folder/item");
        return ownTrash().originalPath("item");
    }),
        "folder/item");
    EXPECT_FALSE(isThere(m_sentinel.path().parent_path() / "0"));
}

TEST_F(TrashVolumesTest, AnotherUsersTrashIsRefused)
{
    if (!m_canMount)
        return expectRulesKept();
    const bool isRoot = geteuid() == 0;
    EXPECT_EQ(onVolume([&] {
        std::filesystem::create_directory(ownTrash().path);
        if (!isRoot) {
            // Nobody else is known in there, but what is root's outside is foreign.
            mountBound("/usr", ownTrash().path);
            makeMountReadOnly(ownTrash().path);
        } else if (chown(ownTrash().path.c_str(), 12345, 12345) != 0) {
            return std::string("chown failed");
        }
        return refusingTheTrash();
    }),
        "refused, untouched");
}

TEST_F(TrashVolumesTest, ATrashThatIsALinkIsRefused)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), ownTrash().path);
        return refusingTheTrash();
    }),
        "refused, untouched");
    EXPECT_FALSE(isThere(m_sentinel.path().parent_path() / "files"));
}

TEST_F(TrashVolumesTest, ATrashThatIsAFileIsRefused)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        writeFile(ownTrash().path, "a file");
        return refusingTheTrash();
    }),
        "refused, untouched");
}

TEST_F(TrashVolumesTest, AFullVolumeKeepsTheItem)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume(
                  [&] {
                      std::filesystem::create_directories(ownTrash().path / "files");
                      std::filesystem::create_directories(ownTrash().path / "info");
                      std::ofstream full(m_volume / "full");
                      while (full << std::string(4096, 'x') << std::flush) { }
                      return trashing(m_volume / "folder/item") + ", " + untouched();
                  },
                  "size=64k"),
        "No space left on device, untouched");
}

TEST_F(TrashVolumesTest, AVolumeWithoutInodesKeepsTheItem)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume(
                  [&] {
                      std::filesystem::create_directories(ownTrash().path / "files");
                      std::filesystem::create_directories(ownTrash().path / "info");
                      for (int i = 0; std::ofstream(m_volume / std::to_string(i)); ++i) { }
                      return trashing(m_volume / "folder/item") + ", " + untouched();
                  },
                  "nr_inodes=24"),
        "No space left on device, untouched");
}

TEST_F(TrashVolumesTest, AReadOnlyVolumeKeepsTheItem)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        makeMountReadOnly(m_volume);
        return trashing(m_volume / "folder/item") + ", " + untouched();
    }),
        "Read-only file system: " + ownTrash().path.native() + ", untouched");
}

TEST_F(TrashVolumesTest, ABoundFolderHasATrashOfItsOwn)
{
    if (!m_canMount)
        return expectRulesKept();
    writeFile(home("bound/folder/item"), "content");
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountBound(home("bound"), m_volume);
        m_files->trashItem(m_volume / "folder/item");
        return ownTrash().originalPath("item");
    }),
        "folder/item");
    EXPECT_FALSE(isThere(m_trash.path));
    EXPECT_EQ(readFile(home("bound/.Trash-0/files/item")), "content");
}

TEST_F(TrashVolumesTest, ALinkOnTheWayToTheVolumeIsNoObstacle)
{
    if (!m_canMount)
        return expectRulesKept();
    std::filesystem::create_directory_symlink(m_volume / "folder", home("way"));
    EXPECT_EQ(onVolume([&] {
        m_files->trashItem(home("way/item"));
        return ownTrash().originalPath("item");
    }),
        "folder/item");
}

TEST_F(TrashVolumesTest, AHomeOnAnotherVolumeKeepsItsOwnTrash)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        Environment environment = m_environment;
        environment.home = m_volume;
        return makeFileManager(environment)->trashItem(m_volume / "folder/item").native();
    }),
        m_volume.native() + "/.local/share/Trash/files/item");
}

TEST_F(TrashVolumesTest, ADataFolderOnAnotherVolumeLeavesTheItemToItsOwnVolume)
{
    if (!m_canMount)
        return expectRulesKept();
    EXPECT_EQ(onVolume([&] {
        const auto inner = m_volume / "inner";
        std::filesystem::create_directory(inner);
        mountMemory(inner);
        Environment environment = m_environment;
        environment.home = m_volume;
        environment.xdgDataHome = inner;
        return makeFileManager(environment)->trashItem(m_volume / "folder/item").native();
    }),
        ownTrash().file("item").native());
}

} // namespace
} // namespace Korvane
