// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/AppImages.h"

#include "Platform/Applications/BundleAround.h"
#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestHost.h"

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane {
namespace {

using std::filesystem::path;
using testing::ElementsAre;
using testing::IsEmpty;

/// The start of a program with "AI" and the type where the format has them.
std::string image(char type = 2)
{
    std::string bytes = std::string("\x7F", 1) + "ELF";
    bytes += std::string("\x02\x01\x01\x00", 4);
    bytes += "AI";
    bytes += type;
    return bytes + std::string(100, '\0');
}

class AppImagesTest : public testing::Test {
protected:
    path makeImage(const path& relative, const std::string& bytes = image()) const
    {
        writeFile(m_environment.home / relative, bytes);
        return m_environment.home / relative;
    }

    path makeEntry(const std::string& id, const std::string& lines) const
    {
        const auto file = m_environment.dataHome() / "applications" / (id + ".desktop");
        writeFile(file, "[Desktop Entry]\nType=Application\n" + lines + "\n");
        return file;
    }

    path makeIcon(const path& relative) const
    {
        writeFile(m_environment.dataHome() / "icons" / relative, "icon");
        return m_environment.dataHome() / "icons" / relative;
    }

    std::vector<HostApplication> installed() const { return installedAppImages(m_environment, Cancellation()); }

    TemporaryFolder m_folder;
    Environment m_environment = Environment::inFolder(m_folder.path());
};

TEST_F(AppImagesTest, KnowsAnImageByItsMagicOrItsName)
{
    EXPECT_TRUE(isAppImage(makeImage("one", image(1))));
    EXPECT_TRUE(isAppImage(makeImage("two", image(2))));
    EXPECT_TRUE(isAppImage(makeImage("Named.AppImage", "anything")));
    EXPECT_FALSE(isAppImage(makeImage("three", image(3))));
    EXPECT_FALSE(isAppImage(makeImage("short", image().substr(0, 10))));
    EXPECT_FALSE(isAppImage(makeImage("no program", "xxxx" + image().substr(4))));
    EXPECT_FALSE(isAppImage(makeImage("empty", "")));
    EXPECT_FALSE(isAppImage(m_environment.home / "missing"));
    const auto pipe = m_environment.home / "Pipe.AppImage";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(isAppImage(pipe));
    std::filesystem::create_directory(m_environment.home / "Folder.AppImage");
    EXPECT_FALSE(isAppImage(m_environment.home / "Folder.AppImage"));
}

TEST_F(AppImagesTest, MakesOneApplicationOfAnImageItsEntriesAndItsIcons)
{
    const auto file = makeImage("My Applications/Editor");
    const auto exec = "Exec=env A=b \"" + file.native() + "\" --new %U\n";
    const auto first = makeEntry("org.example.Editor", "Name=The Editor\nIcon=org.example.Editor\n" + exec);
    const auto second = makeEntry("wm/second", "Name=Another\nIcon=editor-second\n" + exec);
    const auto large = makeIcon("hicolor/256x256/apps/org.example.Editor.png");
    const auto scalable = makeIcon("hicolor/scalable/apps/org.example.Editor.svg");
    const auto loose = makeIcon("editor-second.xpm");
    makeIcon("hicolor/256x256/apps/org.example.Editor.Other.png");
    makeIcon("hicolor/256x256/apps/org.example.Editor.txt");
    const auto found = installed();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].kind, HostApplication::Kind::AppImage);
    EXPECT_EQ(found[0].identifier, "org.example.Editor");
    EXPECT_EQ(found[0].name, "The Editor");
    EXPECT_EQ(found[0].path, file);
    EXPECT_THAT(found[0].desktopEntries, ElementsAre(first, second));
    EXPECT_THAT(found[0].icons, ElementsAre(loose, large, scalable));
}

TEST_F(AppImagesTest, AreSortedByIdAndNamedByTheirFileWithoutAName)
{
    makeEntry("b", "Exec=" + makeImage("Second.AppImage").native());
    makeEntry("a", "Exec=" + makeImage("First.AppImage").native());
    const auto found = installed();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].identifier, "a");
    EXPECT_EQ(found[0].name, "First");
    EXPECT_EQ(found[1].identifier, "b");
}

TEST_F(AppImagesTest, TakesNothingFromOutsideTheHomeFolder)
{
    writeFile(m_folder / "opt/System.AppImage", image());
    makeEntry("system", "Name=System\nExec=" + (m_folder / "opt/System.AppImage").native());
    std::filesystem::create_symlink(m_folder / "opt/System.AppImage", m_environment.home / "Linked.AppImage");
    makeEntry("linked", "Exec=" + (m_environment.home / "Linked.AppImage").native());
    std::filesystem::create_directory_symlink(m_folder / "opt", m_environment.home / "opt");
    makeEntry("below", "Exec=" + (m_environment.home / "opt/System.AppImage").native());
    makeEntry("dots", "Exec=" + (m_environment.home / "../opt/System.AppImage").native());
    EXPECT_THAT(installed(), IsEmpty());
}

TEST_F(AppImagesTest, LooksThroughALinkInTheHomeFolder)
{
    const auto file = makeImage("Editor-2.AppImage");
    std::filesystem::create_symlink(file, m_environment.home / "editor");
    makeEntry("editor", "Exec=" + (m_environment.home / "editor").native());
    const auto found = installed();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].path, file);
}

TEST_F(AppImagesTest, TakesNoEntriesOrIconsThatLieElsewhereThroughALink)
{
    const auto file = makeImage("Editor.AppImage");
    writeFile(m_folder / "share/editor.desktop",
        "[Desktop Entry]\nType=Application\nIcon=editor\nExec=" + file.native() + "\n");
    std::filesystem::create_directories(m_environment.dataHome() / "icons");
    std::filesystem::create_directory_symlink(m_folder / "share", m_environment.dataHome() / "applications");
    EXPECT_THAT(installed(), IsEmpty());
    std::filesystem::remove(m_environment.dataHome() / "applications");
    makeEntry("editor", "Icon=editor\nExec=" + file.native());
    writeFile(m_folder / "share/editor.png", "icon");
    std::filesystem::create_directory_symlink(m_folder / "share", m_environment.dataHome() / "icons/hicolor");
    ASSERT_EQ(installed().size(), 1U);
    EXPECT_THAT(installed()[0].icons, IsEmpty());
}

TEST_F(AppImagesTest, LeavesOtherProgramsAlone)
{
    makeImage("bin/tool", "#!/bin/sh\n");
    makeEntry("tool", "Exec=" + (m_environment.home / "bin/tool").native());
    makeEntry("shell", "Exec=/bin/sh -c " + makeImage("Inner.AppImage").native());
    makeEntry("relative", "Exec=Inner.AppImage");
    makeEntry("nothing", "Name=Nothing");
    makeEntry("hidden", "Hidden=true\nExec=" + makeImage("Hidden.AppImage").native());
    makeEntry("gone", "Exec=" + (m_environment.home / "Gone.AppImage").native());
    writeFile(m_environment.dataHome() / "applications/noise.desktop", std::string("\0\xFF[[=\n", 6));
    EXPECT_THAT(installed(), IsEmpty());
}

TEST_F(AppImagesTest, TakesNoIconThatAnotherEntryNames)
{
    makeEntry("one", "Icon=shared\nExec=" + makeImage("One.AppImage").native());
    makeEntry("two", "Icon=shared\nExec=" + makeImage("Two.AppImage").native());
    makeEntry("three", "Icon=third\nExec=" + makeImage("Three.AppImage").native());
    makeEntry("other", "Icon=third\nExec=/usr/bin/true");
    makeIcon("hicolor/48x48/apps/shared.png");
    makeIcon("hicolor/48x48/apps/third.png");
    for (const auto& application : installed())
        EXPECT_THAT(application.icons, IsEmpty()) << application.identifier;
}

TEST_F(AppImagesTest, TakesNoIconOutOfAThemeOrOutOfThePictures)
{
    const auto picture = m_environment.home / "Pictures/me.png";
    writeFile(picture, "picture");
    makeIcon("Theme/48x48/apps/editor.png");
    makeEntry("editor", "Icon=editor\nExec=" + makeImage("Applications/Editor.AppImage").native());
    makeEntry("portrait", "Icon=" + picture.native() + "\nExec=" + makeImage("Applications/P.AppImage").native());
    for (const auto& application : installed())
        EXPECT_THAT(application.icons, IsEmpty()) << application.identifier;
}

TEST_F(AppImagesTest, TakesAnIconBesideTheImageThatIsNamedByItsPath)
{
    const auto beside = m_environment.home / "Applications/.icons/editor.png";
    writeFile(beside, "icon");
    makeEntry("editor", "Icon=" + beside.native() + "\nExec=" + makeImage("Applications/Editor.AppImage").native());
    const auto inside = makeIcon("kept/by-path.svg");
    makeEntry("other", "Icon=" + inside.native() + "\nExec=" + makeImage("Applications/Other.AppImage").native());
    const auto roundabout = m_environment.dataHome() / "icons/../../../Documents/paper.png";
    writeFile(m_environment.home / "Documents/paper.png", "paper");
    makeEntry("third", "Icon=" + roundabout.native() + "\nExec=" + makeImage("Applications/Third.AppImage").native());
    const auto found = installed();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_THAT(found[0].icons, ElementsAre(beside));
    EXPECT_THAT(found[1].icons, ElementsAre(inside));
    EXPECT_THAT(found[2].icons, IsEmpty());
}

TEST_F(AppImagesTest, StopWhenTheyAreCancelled)
{
    makeEntry("editor", "Exec=" + makeImage("Editor.AppImage").native());
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(installedAppImages(m_environment, cancellation), CancellationError);
}

TEST(BundleAround, IsTheFolderThatAProgramIsLaidOutIn)
{
    EXPECT_EQ(bundleAround("/a/Korvane.app/Contents/MacOS/Korvane"), "/a/Korvane.app");
    EXPECT_EQ(bundleAround("/usr/bin/korvane"), "");
    EXPECT_EQ(bundleAround("/a/Korvane.app/Contents/Resources/tool"), "");
    EXPECT_EQ(bundleAround("/a/Korvane/Contents/MacOS/Korvane"), "");
    EXPECT_EQ(bundleAround(""), "");
}

TEST(ApplicationCatalog, OfATestIsInItsOwnHome)
{
    const TemporaryFolder folder;
    const auto host = makeTestHost(folder).host;
    EXPECT_EQ(host.applications->mainBundle(), "");
    EXPECT_THAT(host.applications->additionalApplications(Cancellation()), IsEmpty());
}

} // namespace
} // namespace Korvane
