// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// The names of what lies in a folder, sorted as bytes; empty when it cannot be listed. Throws CancellationError.
std::vector<std::string> namesInFolder(const std::filesystem::path& folder, const Cancellation& cancellation);

} // namespace Korvane
