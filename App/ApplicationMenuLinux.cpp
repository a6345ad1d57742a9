// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/ApplicationMenu.h"

namespace Korvane {

// The main window has a menu button instead.
std::shared_ptr<QMenuBar> makeApplicationMenu(std::function<void()>) { return nullptr; }

} // namespace Korvane
