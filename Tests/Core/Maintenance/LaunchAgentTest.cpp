// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgent.h"

#include <gtest/gtest.h>

#include <vector>

namespace Korvane {

namespace {

using Domain = LaunchAgent::Domain;
using Kind = LaunchAgent::Kind;

LaunchAgent agent() { return { "/a/b.plist", "b", "/bin/b", Domain::User }; }

} // namespace

TEST(LaunchAgentTest, RecordOfTheSameFileIsAnotherRecord)
{
    const auto first = agent();
    const auto second = agent();
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first == LaunchAgent(first));
    EXPECT_EQ(std::hash<LaunchAgent>()(first), std::hash<LaunchAgent>()(LaunchAgent(first)));
}

TEST(LaunchAgentTest, EveryFieldCounts)
{
    const auto whole = agent();
    std::vector<LaunchAgent> others(6, whole);
    others[0].id = Uuid::random();
    others[1].url = "/a/c.plist";
    others[2].label = "c";
    others[3].program = std::nullopt;
    others[4].domain = Domain::SystemAgents;
    others[5].kind = Kind::Autostart;
    for (const auto& other : others) {
        EXPECT_FALSE(other == whole);
        EXPECT_NE(std::hash<LaunchAgent>()(other), std::hash<LaunchAgent>()(whole));
    }
    auto empty = whole, absent = whole;
    empty.program = "";
    absent.program = std::nullopt;
    EXPECT_FALSE(empty == absent);
    EXPECT_NE(std::hash<LaunchAgent>()(empty), std::hash<LaunchAgent>()(absent));
}

TEST(LaunchAgentTest, OnlyTheUsersOwnAreRemovable)
{
    for (const auto domain : { Domain::User, Domain::SystemAgents, Domain::SystemDaemons })
        EXPECT_EQ(LaunchAgent("/a", "a", std::nullopt, domain).removable(), domain == Domain::User);
}

TEST(LaunchAgentTest, DomainsHaveTheirTexts)
{
    EXPECT_EQ(displayText(Domain::User), "User Agents");
    EXPECT_EQ(displayText(Domain::SystemAgents), "System Agents");
    EXPECT_EQ(displayText(Domain::SystemDaemons), "System Daemons");
}

} // namespace Korvane
