// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/MaintenanceTask.h"
#include "Core/Modules.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What one start of korvane-cli is asked to do.
struct CommandLine {
    enum class Command {
        Help,
        Version,
        Modules,
        Scan,
        Clean,
        Apps,
        Uninstall,
        Maintenance,
        RunTask,
        Agents,
        RemoveAgent,
        Devices,
        Backups,
        RemoveBackup,
        ListMedia,
        ExportMedia,
        DeleteMedia
    };
    enum class Format { Text, Json };
    /// Which findings are cleaned: those that a scan ticks by itself, all, or those named.
    enum class Selection { Preselected, All, Named };
    enum class Removal { MoveToTrash, Delete };
    /// Whether cleaning, uninstalling or removing happens, or is only described.
    enum class Confirmation { Missing, Given };

    Command command = Command::Help;
    CleanerModule module = CleanerModule::systemJunk; ///< Of Scan and Clean.
    Format format = Format::Text;
    Selection selection = Selection::Preselected;
    std::vector<std::filesystem::path> namedItems; ///< Any bytes, as given.
    Removal removal = Removal::MoveToTrash;
    Confirmation confirmation = Confirmation::Missing;
    std::string application; ///< Of Uninstall: a path or an identifier, any bytes, as given.
    MaintenanceTask task = MaintenanceTask::FreeRAM; ///< Of RunTask.
    std::string agent; ///< Of RemoveAgent: the path of a background item, any bytes, as given.
    std::string backup; ///< Of RemoveBackup: the path of a backup, any bytes, as given.
    std::string device; ///< Of ListMedia, ExportMedia and DeleteMedia: the identifier of a device, as given.
    std::vector<std::string> mediaPaths; ///< Of ExportMedia and DeleteMedia: paths on the device, each once, as given.
    std::optional<std::filesystem::path> exportFolder; ///< Of ExportMedia, as given; the downloads without one.

    /// Reads the arguments behind the program's name. Throws UsageError.
    static CommandLine parse(const std::vector<std::string>& arguments);
};

/// The summary that --help prints.
std::string_view usageText();

/// Whether the module is one that the command line can scan and clean.
bool isScannable(CleanerModule module);

/// The raw values of the modules that can be scanned, separated by ", ".
std::string scannableModules();

/// The raw values of the maintenance tasks, separated by ", ".
std::string maintenanceTasks();

} // namespace Korvane
