// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <optional>
#include <string>

namespace Korvane {

/// Stops a background item of the user and moves its file to the Trash, also when it could not be stopped.
///
/// A property list is taken from the service manager, a unit is disabled and stopped by its own manager first. What is
/// not removable is left alone. Refused: a file that lies in none of the folders in which its kind is looked for.
/// What went wrong, in human words; nothing when all is done. That the service manager does not know a property list is
/// no failure. Off the main thread; never throws for the item. A cancel ends the service manager alone, as do three
/// minutes: the item then counts as not stopped, and its file goes to the Trash all the same.
std::optional<std::string> removeLaunchAgent(
    const LaunchAgent& agent, const Host& host, const Cancellation& cancellation = {});

} // namespace Korvane
