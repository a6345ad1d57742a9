// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

class QMenuBar;

namespace Korvane {

/// The platform's application menu with its "Settings…"; null where windows carry their menus themselves.
///
/// Main thread. Calls `openSettings` for as long as the menu bar lives.
std::shared_ptr<QMenuBar> makeApplicationMenu(std::function<void()> openSettings);

} // namespace Korvane
