// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/MaintenanceTask.h"

#include <cstdlib>

namespace Korvane {

namespace {

struct Description {
    std::string_view rawValue;
    std::string_view title;
    std::string_view subtitle;
    std::string_view systemImage;
    std::string_view shellCommand;
};

const Description& description(MaintenanceTask task)
{
    static constexpr Description freeRAM{ "freeRAM", "Free Up RAM", "Purge inactive memory to relieve pressure",
        "memorychip", "/usr/sbin/purge" };
    // The second command runs whatever becomes of the first.
    static constexpr Description flushDNS{ "flushDNS", "Flush DNS Cache", "Fix stale DNS lookups and network glitches",
        "network", "/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder" };
    static constexpr Description reindexSpotlight{ "reindexSpotlight", "Reindex Spotlight",
        "Rebuild the search index from scratch", "magnifyingglass.circle", "/usr/bin/mdutil -E /" };
    switch (task) {
    case MaintenanceTask::FreeRAM:
        return freeRAM;
    case MaintenanceTask::FlushDNS:
        return flushDNS;
    case MaintenanceTask::ReindexSpotlight:
        return reindexSpotlight;
    }
    std::abort();
}

} // namespace

std::string_view rawValue(MaintenanceTask task) { return description(task).rawValue; }

std::optional<MaintenanceTask> maintenanceTask(std::string_view rawValue)
{
    for (const auto task : allMaintenanceTasks) {
        if (description(task).rawValue == rawValue)
            return task;
    }
    return std::nullopt;
}

std::string_view title(MaintenanceTask task) { return description(task).title; }

std::string_view subtitle(MaintenanceTask task) { return description(task).subtitle; }

std::string_view systemImage(MaintenanceTask task) { return description(task).systemImage; }

std::string_view shellCommand(MaintenanceTask task) { return description(task).shellCommand; }

} // namespace Korvane
