// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/WalkOrder.h"

#include <set>
#include <string>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

bool isEntered(const fs::path& path)
{
    static const std::set<std::string> neverEntered{ "node_modules", "Pods", "Carthage", "vendor", "venv", ".venv",
        ".git", ".build", "DerivedData", "target", ".gradle", "bower_components", "__pycache__", ".terraform", ".m2" };
    static const std::set<std::string> packages{ ".app", ".APP", ".photoslibrary", ".bundle" };
    return fs::is_directory(fs::symlink_status(path)) && neverEntered.count(path.filename().native()) == 0
        && packages.count(path.extension().native()) == 0;
}

} // namespace

std::vector<WalkedEntry> walkOrder(const fs::path& root, const fs::path& library) // NOLINT(misc-no-recursion)
{
    std::vector<WalkedEntry> entries;
    for (const auto& entry : fs::directory_iterator(root)) {
        const auto& path = entry.path();
        if (path.filename().native().front() == '.')
            continue;
        entries.push_back({ path, root });
        if (path == library || !isEntered(path))
            continue;
        const auto inner = walkOrder(path, library);
        entries.insert(entries.end(), inner.begin(), inner.end());
    }
    return entries;
}

std::vector<WalkedEntry> walkOrder(const fs::path& home) { return walkOrder(home, home / "Library"); }

} // namespace Korvane
