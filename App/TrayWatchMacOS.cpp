// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/TrayWatch.h"

namespace Korvane {

// The menu bar is always there.
std::unique_ptr<TrayWatch> TrayWatch::make(std::function<void()>) { return nullptr; }

} // namespace Korvane
