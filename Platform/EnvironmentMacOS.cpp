// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Environment.h"

namespace Korvane {

std::filesystem::path Environment::downloads() const { return home / "Downloads"; }

std::vector<std::filesystem::path> Environment::systemDeviceToolFolders(const std::filesystem::path&) { return {}; }

} // namespace Korvane
