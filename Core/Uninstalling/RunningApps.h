// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/InstalledApp.h"
#include "Platform/Workspace.h"

#include <string>
#include <unordered_set>

namespace Korvane {

/// Which applications run at the moment at which this is made.
class RunningApps {
public:
    explicit RunningApps(const Workspace& workspace);

    /// Whether one that runs has exactly the identifier of this one; false when this one has none.
    bool contains(const InstalledApp& app) const;

    bool operator==(const RunningApps&) const = default;

private:
    std::unordered_set<std::string> m_identifiers;
};

} // namespace Korvane
