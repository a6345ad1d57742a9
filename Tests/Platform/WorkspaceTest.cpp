// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Workspace.h"

#include "Platform/FileManagerService.h"
#include "Platform/FileUri.h"
#include "Platform/Host.h"
#include "Tests/Support/ChildProgram.h"
#include "Tests/Support/EnvironmentVariable.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <thread>

namespace Korvane {
namespace {

using testing::HasSubstr;

TEST(FileUri, EncodesEveryByteThatIsNotPlain)
{
    EXPECT_EQ(fileUri("/home/a-b_c.d~e/F0"), "file:///home/a-b_c.d~e/F0");
    EXPECT_EQ(fileUri("/a b/100%,#?&\xFF\xC3\xBC\n"), "file:///a%20b/100%25%2C%23%3F%26%FF%C3%BC%0A");
}

/// The contents of a file that another process writes, as soon as it ends its line; empty after five seconds.
std::string lineWrittenTo(const std::filesystem::path& path)
{
    for (int round = 0; round < 500; ++round) {
        const auto text = readFile(path);
        if (text.ends_with('\n'))
            return text.substr(0, text.size() - 1);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return {};
}

/// A search path of a test's own, with an opener that writes down what it was given.
class WorkspaceTest : public testing::Test {
protected:
    void installOpener() const
    {
        const auto opener = folder / "bin/xdg-open";
        writeFile(opener, "#!/bin/sh\nprintf '%s|%s\\n' \"$#\" \"$1\" >> '" + (folder / "opened").native() + "'\n");
        ::chmod(opener.c_str(), 0755);
    }
    bool open(const std::string& url) const { return makeWorkspace(environment)->open(url); }
    std::string opened() const { return lineWrittenTo(folder / "opened"); }

    TemporaryFolder folder;
    Environment environment = Environment::inFolder(folder.path());
    EnvironmentVariable searchPath{ "PATH", "relative:" + (folder / "bin").native() };
    EnvironmentVariable display{ "DISPLAY", ":77" };
    EnvironmentVariable bus{ "DBUS_SESSION_BUS_ADDRESS", std::nullopt };
    EnvironmentVariable runtime{ "XDG_RUNTIME_DIR", std::nullopt };
};

TEST_F(WorkspaceTest, OpensAnAddressWithoutAShell)
{
    installOpener();
    EXPECT_TRUE(open("https://example.org/?a=1&b=$(id);'\"x y"));
    EXPECT_EQ(opened(), "1|https://example.org/?a=1&b=$(id);'\"x y");
}

TEST_F(WorkspaceTest, RefusesWhatIsNoAddressOfThisDesktop)
{
    installOpener();
    for (const std::string url : { "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles", "",
             "--version", ":", "http:", "no scheme", "/etc/passwd", "-a:b", "sp ace:x" })
        EXPECT_FALSE(open(url)) << url;
    EXPECT_FALSE(open(std::string("http://a\0b", 10)));
    EXPECT_FALSE(std::filesystem::exists(folder / "opened"));
}

TEST_F(WorkspaceTest, RefusesWithoutAnOpenerOrADesktop)
{
    EXPECT_FALSE(open("https://example.org"));
    writeFile(folder / "bin/xdg-open", "not executable");
    EXPECT_FALSE(open("https://example.org"));
    installOpener();
    const EnvironmentVariable noDisplay("DISPLAY", std::nullopt);
    const EnvironmentVariable noWayland("WAYLAND_DISPLAY", std::nullopt);
    EXPECT_FALSE(open("https://example.org"));
}

TEST_F(WorkspaceTest, ShowsTheFolderOfAnItemWhereThereIsNoFileManagerService)
{
    installOpener();
    writeFile(folder / "a b/\xFFname", "x");
    EXPECT_TRUE(makeWorkspace(environment)->showInFileManager(folder / "a b/\xFFname"));
    EXPECT_EQ(opened(), "1|" + fileUri(folder / "a b"));
}

TEST_F(WorkspaceTest, DoesNotShowWhatIsNotThere)
{
    installOpener();
    EXPECT_FALSE(makeWorkspace(environment)->showInFileManager(folder / "missing"));
    EXPECT_FALSE(makeWorkspace(environment)->showInFileManager("relative"));
    EXPECT_FALSE(makeWorkspace(environment)->showInFileManager(""));
    EXPECT_FALSE(std::filesystem::exists(folder / "opened"));
}

TEST_F(WorkspaceTest, FindsNoFileManagerServiceWithoutASessionBus)
{
    EXPECT_FALSE(showInFileManagerService("file:///tmp"));
}

TEST_F(WorkspaceTest, TellsTheApplicationsThatRun)
{
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::copy_file("/bin/sleep", folder / "bin/korvane-test-viewer");
    writeFile(environment.dataHome() / "applications/org.example.Viewer.desktop",
        "[Desktop Entry]\nType=Application\nExec=korvane-test-viewer\n");
    const auto isRunning = [&] {
        const auto running = makeHost(environment).workspace->runningApplications();
        return std::any_of(running.begin(), running.end(),
            [](const auto& application) { return application.bundleIdentifier == "org.example.Viewer"; });
    };
    EXPECT_FALSE(isRunning());
    const ChildProgram viewer({ (folder / "bin/korvane-test-viewer").native(), "60" });
    EXPECT_TRUE(isRunning());
}

TEST(Host, HoldsEveryServiceForItsPlaces)
{
    const TemporaryFolder folder;
    const auto host = makeHost(Environment::inFolder(folder.path()));
    EXPECT_EQ(host.environment.home, folder / "home");
    EXPECT_EQ(host.files->homeDirectoryForCurrentUser(), folder / "home");
    EXPECT_EQ(host.files->temporaryDirectory(), folder / "tmp");
    ASSERT_NE(host.workspace, nullptr);
    EXPECT_TRUE(host.defaults->setBool("flag", true));
    EXPECT_TRUE(makeHost(host.environment).defaults->boolForKey("flag", false));
}

} // namespace
} // namespace Korvane
