// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// Makes `folder` the root and the working folder of this process, for good; false when that is not permitted.
bool enterRoot(const std::filesystem::path& folder);

} // namespace Korvane
