// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/EnsureFolder.h"

#include "Platform/FileError.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

/// What went wrong; no error when nothing did.
std::error_code failure(const fs::path& folder)
{
    try {
        ensureFolder(folder);
        return {};
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), folder);
        return error.code();
    }
}

/// The permissions of a folder that is made under this umask.
fs::perms permissionsUnder(mode_t umask, const fs::path& folder)
{
    const auto former = ::umask(umask);
    ensureFolder(folder);
    ::umask(former);
    return fs::status(folder).permissions();
}

} // namespace

TEST(EnsureFolder, MissingOneIsMadeForItsOwnerToChangeAlone)
{
    const TemporaryFolder folder;
    EXPECT_EQ(permissionsUnder(0, folder / "open"), fs::perms(0755));
    EXPECT_EQ(permissionsUnder(0077, folder / "closed"), fs::perms(0700));
}

TEST(EnsureFolder, ExistingOneStaysAsItIs)
{
    const TemporaryFolder folder;
    const Sentinel inside(folder / "real/file");
    fs::permissions(folder / "real", fs::perms(0700));
    fs::create_directory_symlink(folder / "real", folder / "link");
    for (const char* name : { "real", "real/", "link" })
        EXPECT_FALSE(failure(folder / name)) << name;
    EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms(0700));
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(folder / "link")));
    EXPECT_EQ(inside.difference(), "");
}

TEST(EnsureFolder, NothingIsMadeAboveIt)
{
    const TemporaryFolder folder;
    EXPECT_EQ(failure(folder / "missing/folder"), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(EnsureFolder, WhatLiesInItsPlaceStays)
{
    const TemporaryFolder folder;
    const Sentinel file(folder / "file");
    fs::create_symlink(folder / "nowhere", folder / "dangling");
    for (const char* name : { "file", "dangling" })
        EXPECT_EQ(failure(folder / name), std::errc::not_a_directory) << name;
    EXPECT_EQ(file.difference(), "");
    EXPECT_EQ(fs::read_symlink(folder / "dangling"), folder / "nowhere");
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST(EnsureFolder, ReadOnlyParentRefuses)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "closed");
    fs::create_directory(folder / "closed/there");
    giveToOrdinaryUser(folder.path());
    fs::permissions(folder / "closed", fs::perms(0555));
    EXPECT_EQ(runAsOrdinaryUser([&] {
        return failure(folder / "closed/new").message() + "|"
            + std::to_string(failure(folder / "closed/there").value());
    }),
        std::make_error_code(std::errc::permission_denied).message() + "|0");
    fs::permissions(folder / "closed", fs::perms(0755));
    EXPECT_FALSE(fs::exists(folder / "closed/new"));
}

} // namespace Korvane
