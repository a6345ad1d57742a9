// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DeviceToolsHint.h"

namespace Korvane {

std::string deviceToolsInstallation(const Environment&) { return "brew install libimobiledevice"; }

} // namespace Korvane
