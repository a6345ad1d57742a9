// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace Korvane {

/// What the user can have done to the whole machine, each one fixed command that needs an administrator's rights.
enum class MaintenanceTask { FreeRAM, FlushDNS, ReindexSpotlight };

/// All tasks in the order in which they are shown.
inline constexpr std::array allMaintenanceTasks{ MaintenanceTask::FreeRAM, MaintenanceTask::FlushDNS,
    MaintenanceTask::ReindexSpotlight };

/// The task's raw value, which is also its identity in lists: "freeRAM".
std::string_view rawValue(MaintenanceTask task);
/// The task with exactly this raw value, or nothing.
std::optional<MaintenanceTask> maintenanceTask(std::string_view rawValue);

/// English text that is also the translation key.
std::string_view title(MaintenanceTask task);
/// English text that is also the translation key.
std::string_view subtitle(MaintenanceTask task);
/// The name of the task's symbol.
std::string_view systemImage(MaintenanceTask task);
/// One line for a shell, without double quotes and backslashes.
std::string_view shellCommand(MaintenanceTask task);

} // namespace Korvane
