// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Modules.h"

#include "Core/Scanning/DuplicatesScanner.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Platform/FileManager.h"

#include <cstdlib>

namespace Korvane {

namespace {

struct Presentation {
    std::string_view rawValue;
    std::string_view title;
    std::string_view subtitle;
    std::string_view systemImage;
    AccentColor accent;
};

const Presentation& presentation(CleanerModule module)
{
    static constexpr Presentation systemJunk{ "systemJunk", "System Junk", "Caches, logs and leftover development junk",
        "trash.circle.fill", AccentColor::cyan };
    static constexpr Presentation largeFiles{ "largeFiles", "Large & Old Files", "Find the files eating your disk",
        "externaldrive.fill.badge.exclamationmark", AccentColor::orange };
    static constexpr Presentation uninstaller{ "uninstaller", "Uninstaller", "Remove apps with all their leftovers",
        "xmark.bin.fill", AccentColor::red };
    static constexpr Presentation maintenance{ "maintenance", "Maintenance", "Speed up and maintain your Mac",
        "speedometer", AccentColor::green };
    static constexpr Presentation duplicates{ "duplicates", "Duplicates", "Find duplicate files and photos",
        "doc.on.doc.fill", AccentColor::purple };
    static constexpr Presentation iosDevice{ "iosDevice", "iPhone & iPad", "Clean a connected iPhone or iPad",
        "iphone.gen3", AccentColor::blue };
    switch (module) {
    case CleanerModule::systemJunk:
        return systemJunk;
    case CleanerModule::largeFiles:
        return largeFiles;
    case CleanerModule::uninstaller:
        return uninstaller;
    case CleanerModule::maintenance:
        return maintenance;
    case CleanerModule::duplicates:
        return duplicates;
    case CleanerModule::iosDevice:
        return iosDevice;
    }
    std::abort();
}

} // namespace

std::string_view rawValue(CleanerModule module) { return presentation(module).rawValue; }

std::optional<CleanerModule> cleanerModule(std::string_view rawValue)
{
    for (const auto module : allCleanerModules) {
        if (presentation(module).rawValue == rawValue)
            return module;
    }
    return std::nullopt;
}

std::string_view title(CleanerModule module) { return presentation(module).title; }

std::string_view subtitle(CleanerModule module) { return presentation(module).subtitle; }

std::string_view systemImage(CleanerModule module) { return presentation(module).systemImage; }

AccentColor accent(CleanerModule module) { return presentation(module).accent; }

bool available(CleanerModule) { return true; }

std::unique_ptr<JunkScanner> scanner(CleanerModule module, const FileManager& files)
{
    switch (module) {
    case CleanerModule::systemJunk:
        return std::make_unique<SystemJunkScanner>();
    case CleanerModule::largeFiles:
        return std::make_unique<LargeFilesScanner>();
    case CleanerModule::duplicates:
        return std::make_unique<DuplicatesScanner>(files.homeDirectoryForCurrentUser());
    case CleanerModule::uninstaller:
    case CleanerModule::maintenance:
    case CleanerModule::iosDevice:
        return nullptr;
    }
    std::abort();
}

} // namespace Korvane
