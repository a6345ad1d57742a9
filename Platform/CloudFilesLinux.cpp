// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/CloudFiles.h"

namespace Korvane {

void leaveCloudFilesInTheCloud() noexcept { }

} // namespace Korvane
