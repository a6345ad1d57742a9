// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>

namespace Korvane {

/// The modules of the application, in the order in which every list shows them.
enum class CleanerModule { systemJunk, largeFiles, uninstaller, maintenance, duplicates, iosDevice };

/// The named system colours that modules are shown in; the theme gives them their light and dark values.
enum class AccentColor { cyan, orange, red, green, purple, blue };

/// All modules in declaration order.
inline constexpr std::array allCleanerModules { CleanerModule::systemJunk, CleanerModule::largeFiles,
    CleanerModule::uninstaller, CleanerModule::maintenance, CleanerModule::duplicates, CleanerModule::iosDevice };

/// The module's raw value, which is also its identity in lists: "systemJunk".
std::string_view rawValue(CleanerModule module);
/// The module with exactly this raw value, or nothing.
std::optional<CleanerModule> cleanerModule(std::string_view rawValue);

/// English text that is also the translation key.
std::string_view title(CleanerModule module);
/// English text that is also the translation key.
std::string_view subtitle(CleanerModule module);
/// The name of the module's symbol.
std::string_view systemImage(CleanerModule module);
AccentColor accent(CleanerModule module);
/// Whether the module can be used on this machine.
bool available(CleanerModule module);

/// A fresh scanner with the module's parameters; null for the modules that have screens of their own.
std::unique_ptr<JunkScanner> scanner(CleanerModule module, const FileManager& files);

} // namespace Korvane
