// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSBackupRemoval.h"

#include "Platform/FileError.h"
#include "Tests/Core/Devices/BackupFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestTrash.h"

namespace Korvane {

namespace {

using Paths = std::vector<std::filesystem::path>;

/// Where a backup goes, and what is left alone.
class IOSBackupRemovalTest : public BackupFixture {
protected:
    IOSBackup makeBackup(const std::string& name) const
    {
        writeFile(backup(name) / "00/data", "photos of " + name);
        return record(backup(name));
    }
    static IOSBackup record(const std::filesystem::path& url)
    {
        return { url, "Ada’s iPhone", std::nullopt, std::nullopt, 1000 };
    }
    /// The platform's own words.
    static std::string words(std::errc code)
    {
        return FileError({}, std::make_error_code(code)).localizedDescription();
    }
    bool isInTrash(const std::string& name) { return isInTestTrash(host().environment, name); }
    std::filesystem::path trashed(const std::string& name) { return testTrash(host().environment) / name; }

    void expectGoes(const std::string& name)
    {
        EXPECT_EQ(removeBackup(makeBackup(name), host()), std::nullopt) << name;
        EXPECT_FALSE(std::filesystem::exists(backup(name)));
        EXPECT_EQ(readFile(trashed(name) / "00/data"), "photos of " + name);
    }
};

} // namespace

TEST_F(IOSBackupRemovalTest, BackupGoesToTheTrashWhole)
{
    const Sentinel other(backup("other/Info.plist")), outside(home() / "Documents/letter");
    auto& files = forwardFiles();
    EXPECT_EQ(removeBackup(makeBackup("a"), host()), std::nullopt);
    EXPECT_EQ(files.trashed(), Paths{ backup("a") });
    EXPECT_TRUE(files.removed().empty());
    EXPECT_TRUE(isInTrash("a"));
    EXPECT_EQ(readFile(trashed("a") / "00/data"), "photos of a");
    EXPECT_EQ(folders(), Names{ "other" });
    EXPECT_EQ(other.difference() + outside.difference(), "");
}

TEST_F(IOSBackupRemovalTest, NamesOfAnyKindGoAsTheyAre)
{
    for (const std::string name : { "a\nb", "-rf", "two words", "..." })
        expectGoes(name);
}

TEST_F(IOSBackupRemovalTest, NamesOfAnyBytesGoAsTheyAre)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    expectGoes("a\xff\nb");
}

TEST_F(IOSBackupRemovalTest, WhatIsGoneAlreadyIsSaidToBe)
{
    const auto gone = makeBackup("a");
    removeTree(gone.url);
    EXPECT_EQ(removeBackup(gone, host()), words(std::errc::no_such_file_or_directory));
    removeTree(home() / "Library");
    EXPECT_EQ(removeBackup(gone, host()), words(std::errc::no_such_file_or_directory));
}

TEST_F(IOSBackupRemovalTest, WhatDoesNotLieDirectlyInTheFolderOfBackupsIsRefused)
{
    auto& files = forwardFiles();
    const Sentinel inside(backup("a/00/data")), outside(home() / "Documents/letter");
    const auto root = this->root();
    for (const auto& url : { root, root / "", root / ".", root / "..", root / "a/00", root / "a/..", root / "a/",
             root / "../../../..", home() / "Documents", home(), std::filesystem::path("/"), std::filesystem::path(),
             std::filesystem::path("a") })
        EXPECT_EQ(removeBackup(record(url), host()), words(std::errc::operation_not_permitted)) << url;
    EXPECT_TRUE(files.trashed().empty());
    EXPECT_EQ(inside.difference() + outside.difference(), "");
}

TEST_F(IOSBackupRemovalTest, WhatIsNoFolderAnyMoreIsRefused)
{
    auto& files = forwardFiles();
    const Sentinel file(backup("a"));
    EXPECT_EQ(removeBackup(record(backup("a")), host()), words(std::errc::not_a_directory));
    std::filesystem::create_symlink(file.path(), backup("link"));
    EXPECT_EQ(removeBackup(record(backup("link")), host()), words(std::errc::not_a_directory));
    std::filesystem::create_symlink("/nowhere", backup("broken"));
    EXPECT_EQ(removeBackup(record(backup("broken")), host()), words(std::errc::no_such_file_or_directory));
    EXPECT_TRUE(files.trashed().empty());
    EXPECT_EQ(file.difference(), "");
}

TEST_F(IOSBackupRemovalTest, LinkGoesItselfAndWhatItLeadsToIsKept)
{
    const Sentinel target(folder() / "elsewhere/data");
    std::filesystem::create_directories(root());
    std::filesystem::create_directory_symlink(folder() / "elsewhere", backup("link"));
    EXPECT_EQ(removeBackup(record(backup("link")), host()), std::nullopt);
    EXPECT_EQ(std::filesystem::symlink_status(backup("link")).type(), std::filesystem::file_type::not_found);
    EXPECT_TRUE(std::filesystem::is_symlink(trashed("link")));
    EXPECT_EQ(target.difference(), "");
}

TEST_F(IOSBackupRemovalTest, WhatCannotBeTrashedStaysAndSaysWhy)
{
    const auto kept = makeBackup("a");
    forwardFiles().beforeRemoving = [](const std::filesystem::path& url) {
        throw FileError(url, std::make_error_code(std::errc::no_space_on_device));
    };
    EXPECT_EQ(removeBackup(kept, host()), words(std::errc::no_space_on_device));
    EXPECT_EQ(readFile(backup("a/00/data")), "photos of a");
}

TEST_F(IOSBackupRemovalTest, FolderThatMayNotBeChangedKeepsItsBackups)
{
    const auto kept = makeBackup("a");
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(root(), std::filesystem::perms(0555));
    EXPECT_EQ(runAsOrdinaryUser([&] { return removeBackup(kept, host()).value_or("moved"); }),
        words(std::errc::permission_denied));
    std::filesystem::permissions(root(), std::filesystem::perms(0755));
    EXPECT_EQ(readFile(backup("a/00/data")), "photos of a");
}

TEST_F(IOSBackupRemovalTest, SameNameTwiceGoesUnderTwoNames)
{
    EXPECT_EQ(removeBackup(makeBackup("a"), host()), std::nullopt);
    EXPECT_EQ(removeBackup(makeBackup("a"), host()), std::nullopt);
    EXPECT_EQ(readFile(trashed("a") / "00/data"), "photos of a");
    EXPECT_TRUE(folders().empty());
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(testTrash(host().environment)))
        ++count;
    EXPECT_EQ(count, 2U);
}

} // namespace Korvane
