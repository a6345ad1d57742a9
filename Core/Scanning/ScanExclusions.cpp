// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/ScanExclusions.h"

namespace Korvane {

const std::unordered_set<std::string>& ScanExclusions::dependencyDirNames()
{
    static const std::unordered_set<std::string> names{ "node_modules", "Pods", "Carthage", "vendor", "venv", ".venv",
        ".git", ".build", "DerivedData", "target", ".gradle", "bower_components", "__pycache__", ".terraform", ".m2" };
    return names;
}

bool ScanExclusions::shouldSkip(std::string_view directoryName)
{
    // The set is asked with a text of its own type: looking up by view is missing from the oldest library we build
    // with.
    return dependencyDirNames().count(std::string(directoryName)) != 0;
}

} // namespace Korvane
