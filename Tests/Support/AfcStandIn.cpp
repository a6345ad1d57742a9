// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/AfcStandIn.h"

#include "Tests/Support/TemporaryFolder.h"

#include <algorithm>
#include <fstream>

namespace Korvane {

AfcStandIn::AfcStandIn(const std::filesystem::path& folder)
    : m_configuration(folder / "local/bin/afcclient.conf")
{
    rules.device = folder / "device";
    rules.log = folder / "afcclient.log";
    rules.begun = folder / "begun";
    std::filesystem::create_directories(rules.device / "DCIM");
    std::filesystem::create_directories(m_configuration.parent_path());
    std::filesystem::create_symlink(KORVANE_AFC_STAND_IN, folder / "local/bin/afcclient");
    apply();
}

void AfcStandIn::add(const std::string& path, const std::string& contents) const
{
    writeFile(rules.device / std::filesystem::path(path).relative_path(), contents);
}

bool AfcStandIn::has(const std::string& path) const
{
    return std::filesystem::exists(rules.device / std::filesystem::path(path).relative_path());
}

std::vector<std::string> AfcStandIn::log() const
{
    std::vector<std::string> lines;
    std::ifstream file(rules.log, std::ios::binary);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::size_t AfcStandIn::runs() const
{
    const auto lines = log();
    return static_cast<std::size_t>(
        std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("run -u "); }));
}

} // namespace Korvane
