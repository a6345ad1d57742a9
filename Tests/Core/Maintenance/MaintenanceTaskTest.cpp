// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/MaintenanceTask.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Korvane {

TEST(MaintenanceTaskTest, TasksAreInOrderWithTheirTexts)
{
    struct Row {
        std::string rawValue, title, subtitle, systemImage, shellCommand;
        bool operator==(const Row&) const = default;
    };
    std::vector<Row> rows;
    for (const auto task : allMaintenanceTasks)
        rows.push_back({ std::string(rawValue(task)), std::string(title(task)), std::string(subtitle(task)),
            std::string(systemImage(task)), std::string(shellCommand(task)) });
    const std::vector<Row> expected{ { "freeRAM", "Free Up RAM", "Purge inactive memory to relieve pressure",
                                         "memorychip", "/usr/sbin/purge" },
        { "flushDNS", "Flush DNS Cache", "Fix stale DNS lookups and network glitches", "network",
            "/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder" },
        { "reindexSpotlight", "Reindex Spotlight", "Rebuild the search index from scratch", "magnifyingglass.circle",
            "/usr/bin/mdutil -E /" } };
    EXPECT_EQ(rows.size(), 3U);
    EXPECT_TRUE(rows == expected);
}

TEST(MaintenanceTaskTest, TaskIsKnownByExactlyItsRawValue)
{
    for (const auto task : allMaintenanceTasks)
        EXPECT_EQ(maintenanceTask(rawValue(task)), task);
    for (const char* other : { "", "FreeRAM", "freeRAM ", "purge" })
        EXPECT_EQ(maintenanceTask(other), std::nullopt) << other;
}

TEST(MaintenanceTaskTest, CommandsNeedNoQuoting)
{
    for (const auto task : allMaintenanceTasks)
        EXPECT_EQ(shellCommand(task).find_first_of("\"\\"), std::string_view::npos);
}

} // namespace Korvane
