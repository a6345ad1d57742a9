// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Core/Maintenance/MaintenanceTask.h"

#include <QString>

namespace Korvane::MaintenanceTexts {

/// What a task is called, in the user's language.
QString title(MaintenanceTask task);
/// What a task is good for, in the user's language.
QString subtitle(MaintenanceTask task);
/// The name of a task's symbol.
QString symbol(MaintenanceTask task);
/// What tells one task from another, also when it is asked for by the screen: its raw value.
QString identity(MaintenanceTask task);
/// The domain's name as it is shown, in the user's language.
QString domain(LaunchAgent::Domain domain);
/// The second line of an agent: the program that it runs, else where its file lies.
QString detail(const LaunchAgent& agent);
/// The agent's label, to be shown.
QString label(const LaunchAgent& agent);
/// What a task's failure has to say, to be shown. Like those above cut where it is longer than anybody reads.
QString message(const QString& text);

} // namespace Korvane::MaintenanceTexts
