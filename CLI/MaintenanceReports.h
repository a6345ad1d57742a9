// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Core/Maintenance/MaintenanceTask.h"
#include "Platform/Host.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// The maintenance tasks, and what is missing for those that cannot be run here.
std::string tasksAsText(const Host& host);
/// `[{"task", "title", "subtitle", "missing"}]`; "missing" is null for what can be run.
std::string tasksAsJson(const Host& host);

/// What has become of a task; without a message it is done.
std::string taskResultAsText(MaintenanceTask task, const std::optional<std::string>& message);
/// `{"task", "done", "message"}`; "message" is null for what is done.
std::string taskResultAsJson(MaintenanceTask task, const std::optional<std::string>& message);

/// The background items with their domains, programs and files.
std::string agentsAsText(const std::vector<LaunchAgent>& agents);
/// `[{"path", "label", "program", "domain", "kind", "removable"}]`; "program" is null where none is stated, "kind" one
/// of "propertyList", "autostart", "systemdUnit".
std::string agentsAsJson(const std::vector<LaunchAgent>& agents);

/// What removing an item would do.
std::string removalPlanAsText(const LaunchAgent& agent);
/// The members of agentsAsJson for the one, and "dryRun".
std::string removalPlanAsJson(const LaunchAgent& agent);

/// What has become of an item; without a message it is in the Trash, and stopped when it is of a kind that can be.
std::string removalResultAsText(const LaunchAgent& agent, const std::optional<std::string>& message);
/// `{"path", "label", "message"}`; "message" is null for what is done.
std::string removalResultAsJson(const LaunchAgent& agent, const std::optional<std::string>& message);

} // namespace Korvane
