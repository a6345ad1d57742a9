// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/HostMaintenance.h"

namespace Korvane {

std::optional<HostMeans> hostMeans(HostTask, const Environment&) { return std::nullopt; }

std::string hostFailure(const ChildProcess&, const ChildResult& result) { return result.errorOutput.text; }

} // namespace Korvane
