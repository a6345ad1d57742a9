// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/LinuxApplications.h"

#include "Platform/Applications/Interpreters.h"
#include "Tests/Support/ChildProgram.h"
#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestBundles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

constexpr std::uint32_t user = 1000;

/// A table of processes, programs and desktop entries of a test's own.
class LinuxApplicationsTest : public testing::Test {
protected:
    std::vector<std::string> running() const
    {
        return LinuxApplications{ folder / "proc", { folder / "data", folder / "system" }, { folder / "usr/bin" },
            user }
            .runningIdentifiers();
    }

    std::filesystem::path program(const std::string& relative,
        const std::string& contents = "\x7F"
                                      "ELF") const
    {
        const auto path = folder / relative;
        writeFile(path, contents);
        ::chmod(path.c_str(), 0755);
        return path;
    }

    void entry(const std::string& id, const std::string& exec, const std::string& more = "",
        const std::string& data = "system") const
    {
        writeFile(folder / data / "applications" / (id + ".desktop"),
            "[Desktop Entry]\nType=Application\nName=Any\nExec=" + exec + "\n" + more);
    }

    std::filesystem::path process(const std::string& executable, const std::vector<std::string>& arguments = {},
        const std::string& cgroup = "0::/init.scope\n", std::uint32_t owner = user)
    {
        const auto path = folder / "proc" / std::to_string(m_nextProcess++);
        const auto owners = std::to_string(owner);
        writeFile(
            path / "status", "Name:\tany\nUid:\t" + owners + "\t" + owners + "\t" + owners + "\t" + owners + "\n");
        writeFile(path / "cgroup", cgroup);
        std::string line;
        for (const auto& argument : arguments)
            line += argument + '\0';
        writeFile(path / "cmdline", line);
        if (!executable.empty())
            std::filesystem::create_symlink(executable, path / "exe");
        return path;
    }

    TemporaryFolder folder;

private:
    int m_nextProcess = 100;
};

TEST_F(LinuxApplicationsTest, NamesTheApplicationsOfUnits)
{
    process("", {}, "0::/user.slice/app.slice/app-gnome-org.gnome.Evince-7.scope\n");
    process("", {}, "0::/user.slice/app.slice/app-gnome-org.gnome.Evince-7.scope\n");
    process("", {}, "0::/user.slice/app.slice/snap.spotify.spotify-1.scope\n");
    EXPECT_THAT(running(), ElementsAre("org.gnome.Evince", "spotify"));
}

TEST_F(LinuxApplicationsTest, LeavesOutProcessesOfOtherUsers)
{
    process("", {}, "0::/app.slice/app-gnome-org.example.Theirs-7.scope\n", user + 1);
    process("", {}, "0::/app.slice/app-gnome-org.example.Roots-7.scope\n", 0);
    EXPECT_THAT(running(), IsEmpty());
}

TEST_F(LinuxApplicationsTest, NeverNamesAShellOrAnInterpreterByItself)
{
    process("", {}, "0::/app.slice/app-KDE-sh-7.scope\n");
    process("", {}, "0::/app.slice/app-KDE-python3.11-8.scope\n");
    process("", {}, "0::/app.slice/app-gnome-Bash-9.scope\n");
    const auto shell = program("usr/bin/bash");
    entry("terminal-session", "bash");
    entry("bash", "bash -l");
    process(shell, { "bash" });
    process(shell, { "-bash", "-l" });
    EXPECT_THAT(running(), IsEmpty());
}

TEST_F(LinuxApplicationsTest, NamesTheApplicationInASandbox)
{
    const auto sandboxed = process("");
    writeFile(
        sandboxed / "root/.flatpak-info", "[Application]\nname=org.mozilla.firefox\nruntime=x\n[Instance]\nname=no\n");
    const auto broken = process("");
    writeFile(broken / "root/.flatpak-info", "name=outside.every.group\n[Instance]\nname=no\n");
    EXPECT_THAT(running(), ElementsAre("org.mozilla.firefox"));
}

TEST_F(LinuxApplicationsTest, NamesTheBundleThatAProgramLiesIn)
{
    const auto started = makeBundle(folder / "Applications/Started.app", "org.example.Started");
    const auto scripted = makeBundle(folder / "Applications/Scripted.app", "org.example.Scripted");
    makeBundle(folder / "Applications/Idle.app", "org.example.Idle");
    makeBundle(folder / "Applications/Beside.app", "org.example.Beside");
    writeFile(folder / "Applications/Bare.app/Contents/MacOS/program", "none");
    process(started / "Contents/MacOS/program (deleted)");
    process(program("usr/bin/bash"), { "bash", "-e", scripted / "Contents/MacOS/program" });
    process(folder / "Applications/Beside.app/Contents/Resources/tool", { scripted / "Contents/MacOS/program" });
    process(folder / "Applications/Bare.app/Contents/MacOS/program");
    process(folder / "Applications/Missing.app/Contents/MacOS/program");
    process(folder / "usr/bin/bash", { "bash", "Idle.app/Contents/MacOS/program" });
    EXPECT_THAT(running(), ElementsAre("org.example.Scripted", "org.example.Started"));
}

TEST_F(LinuxApplicationsTest, MatchesExecutablesToInstalledEntries)
{
    const auto editor = program("opt/editor/editor-bin");
    std::filesystem::create_directories(folder / "usr/bin");
    std::filesystem::create_symlink(editor, folder / "usr/bin/editor");
    entry("org.example.Editor", "editor %F", "StartupWMClass=Editor-window\n");
    entry("org.example.Unrelated", "unrelated");
    process(editor, { "editor", "a.txt" });
    EXPECT_THAT(running(), UnorderedElementsAre("org.example.Editor", "Editor-window"));
}

TEST_F(LinuxApplicationsTest, MatchesQuotedAbsoluteAndEnvironmentCommandLines)
{
    const auto spaced = program("opt/My App/run me");
    const auto other = program("usr/bin/other");
    entry("spaced", "\"" + spaced.native() + "\" %u");
    entry("wrapped", "env LANG=C OTHER=1 other --flag");
    process(spaced);
    process(other);
    EXPECT_THAT(running(), UnorderedElementsAre("spaced", "wrapped"));
}

TEST_F(LinuxApplicationsTest, MatchesAProgramThatWasUpdatedWhileItRuns)
{
    const auto editor = program("usr/bin/editor");
    entry("org.example.Editor", "editor");
    process(editor.native() + " (deleted)");
    EXPECT_THAT(running(), ElementsAre("org.example.Editor"));
}

TEST_F(LinuxApplicationsTest, MatchesAnInterpreterOnlyWithTheScriptOfTheEntry)
{
    const auto python = program("usr/bin/python3.11");
    const auto java = program("usr/bin/java");
    const auto script = program("opt/notes/notes.py", "print()");
    const auto archive = program("opt/draw/draw.jar", "PK");
    entry("notes", "python3.11 " + script.native());
    entry("draw", "java -Xmx1g -jar " + archive.native() + " %F");
    entry("lost", "python3.11 " + (folder / "gone.py").native());
    process(python, { "python3.11", "/another/script.py" });
    process(java, { "java", "-version" });
    EXPECT_THAT(running(), IsEmpty());
    process(python, { "python3.11", "-X", "dev", script.native() });
    process(java, { "java", "-jar", archive.native() });
    EXPECT_THAT(running(), ElementsAre("draw", "notes"));
}

TEST_F(LinuxApplicationsTest, MatchesAStartScriptByWhatRunsForIt)
{
    const auto python = program("usr/bin/python3.11");
    const auto merge = program("usr/bin/merge", "#!/usr/bin/python3\n");
    entry("org.example.Merge", "merge %F");
    process(python, { "/usr/bin/python3", merge.native() });
    program("opt/web/start-web", "#!/bin/sh\n");
    std::filesystem::create_symlink(folder / "opt/web/start-web", folder / "usr/bin/web-stable");
    entry("web-browser", "web-stable %U", "StartupWMClass=Web-browser\n");
    process(program("opt/web/web"), { "web", "--type=main" });
    program("usr/bin/fox-esr", "#!/bin/sh\n");
    entry("fox", "fox-esr %u");
    process(program("usr/lib/fox-esr/fox-esr"));
    process(program("usr/bin/something-else"));
    EXPECT_THAT(running(), UnorderedElementsAre("org.example.Merge", "web-browser", "Web-browser", "fox"));
}

TEST_F(LinuxApplicationsTest, GivesEntriesInSubfoldersDashedIdsAndLetsTheUsersOwnHideOthers)
{
    const auto viewer = program("usr/bin/viewer");
    entry("kde/viewer", "viewer");
    entry("viewer", "viewer");
    entry("viewer", "viewer", "Hidden=true\n", "data");
    process(viewer);
    EXPECT_THAT(running(), ElementsAre("kde-viewer"));
}

TEST_F(LinuxApplicationsTest, PassesOverBrokenEntries)
{
    const auto editor = program("usr/bin/editor");
    const auto applications = folder / "system/applications";
    entry("good", "editor");
    entry("no-program", "missing-program");
    entry("empty", "");
    entry("relative", "bin/editor");
    entry("folder-as-program", (folder / "usr").native());
    writeFile(applications / "garbage.desktop", std::string("\0\xFF\n[Desktop Entry", 17));
    writeFile(
        applications / "huge.desktop", "[Desktop Entry]\nType=Application\nExec=editor\n#" + std::string(2 << 20, 'x'));
    std::filesystem::create_directories(applications / "folder.desktop");
    std::filesystem::create_symlink(applications / "loop.desktop", applications / "loop.desktop");
    ASSERT_EQ(::mkfifo((applications / "pipe.desktop").c_str(), 0600), 0);
    process(editor);
    EXPECT_THAT(running(), ElementsAre("good"));
}

TEST_F(LinuxApplicationsTest, PassesOverProcessesThatAreGoneOrOddHalfway)
{
    std::filesystem::create_directories(folder / "proc/200");
    writeFile(folder / "proc/201/status", "Uid:\n");
    writeFile(folder / "proc/202/status", "Name:\tx\nUid:\tnobody\n");
    writeFile(folder / "proc/203/status", "Name:\tx\nUid:\t1000\n");
    writeFile(folder / "proc/self/status", "Name:\tx\nUid:\t1000\n");
    writeFile(folder / "proc/self/cgroup", "0::/app-x-not.a.Process-1.scope\n");
    std::filesystem::create_directories(folder / "proc/204/status");
    EXPECT_THAT(running(), IsEmpty());
}

TEST_F(LinuxApplicationsTest, IsEmptyWithoutATableOfProcesses) { EXPECT_THAT(running(), IsEmpty()); }

TEST(LinuxApplications, FindsAProgramThatReallyRuns)
{
    const TemporaryFolder folder;
    const auto editor = folder / "bin/korvane-test-editor";
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::copy_file("/bin/sleep", editor);
    writeFile(folder / "share/applications/org.example.KorvaneTest.desktop",
        "[Desktop Entry]\nType=Application\nExec=korvane-test-editor %F\nStartupWMClass=KorvaneTestWindow\n");
    const LinuxApplications applications{ "/proc", { folder / "share" }, { folder / "bin" }, ::getuid() };
    EXPECT_THAT(applications.runningIdentifiers(), Not(Contains("org.example.KorvaneTest")));
    {
        const ChildProgram child({ editor.native(), "60" });
        EXPECT_THAT(applications.runningIdentifiers(), Contains("org.example.KorvaneTest"));
        EXPECT_THAT(applications.runningIdentifiers(), Contains("KorvaneTestWindow"));
    }
    EXPECT_THAT(applications.runningIdentifiers(), Not(Contains("org.example.KorvaneTest")));
}

TEST(Interpreters, AreKnownWithAndWithoutTheirVersions)
{
    for (const auto* name : { "sh", "bash", "python", "python3", "python3.11", "perl5.36.0", "node18", "gjs-console",
             "env", "flatpak", "snap", "java", "electron", "ruby3.1", "lua5.4" })
        EXPECT_TRUE(isInterpreter(name)) << name;
    for (const auto* name : { "", "3", "firefox", "shotwell", "nodepad", "7zip", "pythonista" })
        EXPECT_FALSE(isInterpreter(name)) << name;
}

} // namespace
} // namespace Korvane
