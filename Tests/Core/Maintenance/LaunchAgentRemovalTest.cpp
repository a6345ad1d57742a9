// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentRemoval.h"

#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/Maintenance/MaintenanceFixture.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestTrash.h"

#include <chrono>
#include <unistd.h>

namespace Korvane {

namespace {

using Domain = LaunchAgent::Domain;
using Kind = LaunchAgent::Kind;
using Paths = std::vector<std::filesystem::path>;

/// How an item is stopped, where its file goes, and what is left alone.
class LaunchAgentRemovalTest : public MaintenanceFixture {
protected:
    LaunchAgentRemovalTest() { host().files = m_files; }

    const ForwardingFileManager& files() const { return *m_files; }
    void setFault(std::function<void(const std::filesystem::path&)> fault)
    {
        m_files->beforeRemoving = std::move(fault);
    }

    std::filesystem::path makeAgent() const
    {
        writeFile(agentsFolder() / "com.example.plist", labelled("com.example"));
        return agentsFolder() / "com.example.plist";
    }
    static std::string userId() { return std::to_string(::getuid()); }
    bool isInTrash(const std::string& name) { return isInTestTrash(host().environment, name); }

private:
    std::shared_ptr<ForwardingFileManager> m_files = std::make_shared<ForwardingFileManager>(host().files);
};

} // namespace

TEST_F(LaunchAgentRemovalTest, AgentIsTakenFromTheServiceManagerAndThenTrashed)
{
    const auto url = makeAgent();
    const Sentinel other(agentsFolder() / "other.plist");
    auto& runner = recordRuns();
    bool wasThere = false;
    runner.answer = [&](const ChildProcess&, const Cancellation&) {
        wasThere = std::filesystem::exists(url);
        return TestProcessRunner::exited(0);
    };
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), std::nullopt);
    EXPECT_EQ(runner.calls(),
        (std::vector<Call>{ { program("launchctl").native(), "bootout", "gui/" + userId(), url.native() } }));
    EXPECT_TRUE(wasThere);
    EXPECT_EQ(files().trashed(), Paths{ url });
    EXPECT_TRUE(isInTrash("com.example.plist"));
    EXPECT_EQ(labels(), std::vector<std::string>{ "other" });
    EXPECT_EQ(other.difference(), "");
}

TEST_F(LaunchAgentRemovalTest, RealServiceManagerReceivesItsArguments)
{
    const auto url = makeAgent();
    writeProgram(program("launchctl"), "printf '%s|' \"$@\" > '" + (folder() / "seen").native() + "'; exit 3");
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), std::nullopt);
    EXPECT_EQ(readFile(folder() / "seen"), "bootout|gui/" + userId() + "|" + url.native() + "|");
    EXPECT_FALSE(std::filesystem::exists(url));
}

TEST_F(LaunchAgentRemovalTest, AgentGoesToTheTrashWithoutAServiceManagerToo)
{
    const auto url = makeAgent();
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), std::nullopt);
    EXPECT_TRUE(isInTrash("com.example.plist"));
}

TEST_F(LaunchAgentRemovalTest, ServiceManagerThatHangsIsEndedByACancelAndTheFileGoesAllTheSame)
{
    const auto agent = agentAt(makeAgent());
    writeProgram(program("launchctl"), ": > '" + (folder() / "begun").native() + "'; exec sleep 600");
    EXPECT_EQ(removalThatIsCancelled(agent),
        "moved to the Trash, but it may still run until the next login: stopping it was cancelled");
    EXPECT_TRUE(isInTrash("com.example.plist"));
}

TEST_F(LaunchAgentRemovalTest, ServiceManagerIsNotWaitedForForEver)
{
    const auto url = makeAgent();
    auto& runner = recordRuns();
    runner.answer = [](const ChildProcess& manager, const Cancellation&) -> ChildResult {
        EXPECT_EQ(manager.timeLimit, std::chrono::minutes(3));
        throw FileError(manager.program, std::make_error_code(std::errc::timed_out));
    };
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()),
        "moved to the Trash, but it may still run until the next login: launchctl took too long");
    EXPECT_TRUE(isInTrash("com.example.plist"));
}

TEST_F(LaunchAgentRemovalTest, WhatIsNotTheUsersOwnIsLeftAlone)
{
    const auto& runner = recordRuns();
    const Sentinel agent(folder() / "Library/LaunchAgents/a.plist");
    const Sentinel daemon(folder() / "Library/LaunchDaemons/d.plist");
    const Sentinel entry(folder() / "xdg/autostart/e.desktop");
    EXPECT_EQ(removeLaunchAgent({ agent.path(), "a", std::nullopt, Domain::SystemAgents }, host()), std::nullopt);
    EXPECT_EQ(removeLaunchAgent({ daemon.path(), "d", std::nullopt, Domain::SystemDaemons }, host()), std::nullopt);
    EXPECT_EQ(removeLaunchAgent({ entry.path(), "e", std::nullopt, Domain::SystemAgents, Kind::Autostart }, host()),
        std::nullopt);
    EXPECT_TRUE(runner.calls().empty() && files().trashed().empty());
    EXPECT_EQ(agent.difference() + daemon.difference() + entry.difference(), "");
}

TEST_F(LaunchAgentRemovalTest, FileOutsideItsFolderIsRefused)
{
    const auto& runner = recordRuns();
    const Sentinel document(home() / "Documents/letter.plist");
    const Sentinel inner(agentsFolder() / "inner/deep.plist");
    for (const auto kind : { Kind::PropertyList, Kind::Autostart, Kind::SystemdUnit }) {
        for (const auto& url : Paths{ document.path(), inner.path(), agentsFolder() / "../../Documents/letter.plist",
                 agentsFolder(), agentsFolder() / "", agentsFolder() / "..", agentsFolder() / "note.txt", home(),
                 std::filesystem::path(), std::filesystem::path("/") }) {
            const auto message = removeLaunchAgent({ url, "x", std::nullopt, Domain::User, kind }, host());
            ASSERT_NE(message, std::nullopt) << url;
            EXPECT_EQ(*message,
                FileError(url, std::make_error_code(std::errc::operation_not_permitted)).localizedDescription());
        }
    }
    EXPECT_TRUE(runner.calls().empty() && files().trashed().empty());
    EXPECT_EQ(document.difference() + inner.difference(), "");
}

TEST_F(LaunchAgentRemovalTest, WhatCannotBeTrashedStaysAndSaysWhy)
{
    const auto url = makeAgent();
    const auto agent = agentAt(url);
    const FileError error(url, std::make_error_code(std::errc::read_only_file_system));
    setFault([&](const std::filesystem::path&) { throw error; });
    EXPECT_EQ(removeLaunchAgent(agent, host()), "not moved to the Trash: " + error.localizedDescription());
    EXPECT_TRUE(std::filesystem::exists(url));
    setFault({});
    std::filesystem::remove(url);
    const auto message = removeLaunchAgent(agent, host());
    ASSERT_NE(message, std::nullopt);
    EXPECT_TRUE(message->starts_with("not moved to the Trash: "));
}

TEST_F(LaunchAgentRemovalTest, LinkIsTrashedAndWhatItLeadsToIsKept)
{
    const Sentinel target(home() / "project/agent.plist");
    std::filesystem::create_directories(agentsFolder());
    std::filesystem::create_symlink(target.path(), agentsFolder() / "link.plist");
    EXPECT_EQ(removeLaunchAgent(agentAt(agentsFolder() / "link.plist"), host()), std::nullopt);
    EXPECT_FALSE(std::filesystem::is_symlink(agentsFolder() / "link.plist"));
    EXPECT_EQ(target.difference(), "");
}

} // namespace Korvane
