// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Environment.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>

namespace Korvane {
namespace {

/// A home of a test's own, and what its list of folders says.
class DownloadsFolderTest : public testing::Test {
protected:
    std::filesystem::path home() const { return m_environment.home; }
    std::filesystem::path list() const { return home() / ".config/user-dirs.dirs"; }
    std::filesystem::path downloadsWhenListed(const std::string& text) const
    {
        writeFile(list(), text);
        return m_environment.downloads();
    }
    Environment& environment() { return m_environment; }
    const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
    Environment m_environment = Environment::inFolder(m_folder.path());
};

} // namespace

TEST_F(DownloadsFolderTest, IsTheUsualOneWithoutAList)
{
    EXPECT_EQ(environment().downloads(), home() / "Downloads");
    EXPECT_EQ(downloadsWhenListed(""), home() / "Downloads");
    EXPECT_EQ(downloadsWhenListed("XDG_DESKTOP_DIR=\"$HOME/Desktop\"\n"), home() / "Downloads");
}

TEST_F(DownloadsFolderTest, IsTheOneThatTheListNames)
{
    const std::string comment = "# This file is written by xdg-user-dirs-update\n";
    EXPECT_EQ(
        downloadsWhenListed(comment + "XDG_DOWNLOAD_DIR=\"$HOME/Téléchargements\"\n"), home() / "Téléchargements");
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/a b/c/\"").native(), (home() / "a b/c").native());
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"/media/big disk/Downloads//\"\n").native(),
        "/media/big disk/Downloads");
    EXPECT_EQ(
        downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/\\\"quoted\\\" \\$x\\\\y\"\n"), home() / "\"quoted\" $x\\y");
    EXPECT_EQ(downloadsWhenListed("  XDG_DOWNLOAD_DIR = \t\"$HOME/d\" # mine\n"), home() / "d");
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/any\xff\"\n"), home() / "any\xff");
}

TEST_F(DownloadsFolderTest, IsTheHomeWhenTheUserWantsNone)
{
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/\"\n").native(), home().native());
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME\"\n").native(), home().native());
}

TEST_F(DownloadsFolderTest, LastLineThatCanBeReadCounts)
{
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/a\"\nXDG_DOWNLOAD_DIR=\"$HOME/b\"\n"), home() / "b");
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/a\"\nXDG_DOWNLOAD_DIR=relative\n"), home() / "a");
}

TEST_F(DownloadsFolderTest, OtherFormsDoNotCount)
{
    for (const char* line : { "XDG_DOWNLOAD_DIR=$HOME/d", "XDG_DOWNLOAD_DIR=\"d\"", "XDG_DOWNLOAD_DIR=\"~/d\"",
             "XDG_DOWNLOAD_DIR=\"$OTHER/d\"", "XDG_DOWNLOAD_DIR=\"$HOMEd\"",
             "XDG_DOWNLOAD_DIR=", "XDG_DOWNLOAD_DIR=\"\"", "XDG_DOWNLOAD_DIRS=\"/d\"", "#XDG_DOWNLOAD_DIR=\"/d\"",
             "export XDG_DOWNLOAD_DIR=\"/d\"" })
        EXPECT_EQ(downloadsWhenListed(line), home() / "Downloads") << line;
}

TEST_F(DownloadsFolderTest, ListLiesInTheFolderOfSettings)
{
    environment().xdgConfigHome = folder() / "settings";
    writeFile(folder() / "settings/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/settled\"\n");
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"$HOME/other\"\n"), home() / "settled");
}

TEST_F(DownloadsFolderTest, ListThatCannotBeReadIsNotWaitedFor)
{
    std::filesystem::create_directories(list().parent_path());
    ASSERT_EQ(::mkfifo(list().c_str(), 0600), 0);
    EXPECT_EQ(environment().downloads(), home() / "Downloads");
    std::filesystem::remove(list());
    std::filesystem::create_directory(list());
    EXPECT_EQ(environment().downloads(), home() / "Downloads");
    std::filesystem::remove(list());
    EXPECT_EQ(downloadsWhenListed("XDG_DOWNLOAD_DIR=\"/d\"\n" + std::string(1'000'000, '\n')), home() / "Downloads");
}

} // namespace Korvane
