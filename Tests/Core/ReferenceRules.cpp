// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/ReferenceRules.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/DisplayText.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Core/WalkOrder.h"

#include <algorithm>
#include <map>
#include <utility>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

bool isFolder(const fs::path& path) { return fs::is_directory(fs::symlink_status(path)); }

bool isFile(const fs::path& path) { return fs::is_regular_file(fs::symlink_status(path)); }

bool isHidden(const fs::path& path) { return path.filename().native().front() == '.'; }

std::string shown(const fs::path& path) { return displayText(path.filename()); }

/// The regular files that a scan looks at, in the order of the walk.
std::vector<fs::path> filesBelow(const fs::path& root, const fs::path& library)
{
    std::vector<fs::path> files;
    for (const auto& entry : walkOrder(root, library)) {
        if (isFile(entry.path) && entry.path != library)
            files.push_back(entry.path);
    }
    return files;
}

void addJunk(
    std::set<ReferenceRow>& rows, const fs::path& url, const std::string& name, const char* category, bool selected)
{
    if (const auto size = ReferenceRules::totalSize(url); size > 0)
        rows.emplace(url, name, category, size, selected);
}

void addChildren(
    std::set<ReferenceRow>& rows, const fs::path& place, const char* category, const std::set<std::string>& unselected)
{
    if (!fs::is_directory(place))
        return;
    for (const auto& entry : fs::directory_iterator(place)) {
        const auto name = entry.path().filename().native();
        const bool selected = std::none_of(unselected.begin(), unselected.end(),
            [&](const std::string& part) { return name.find(part) != std::string::npos; });
        if (!isHidden(entry.path()))
            addJunk(rows, entry.path(), shown(entry.path()), category, selected);
    }
}

} // namespace

ReferenceRules::ReferenceRules(fs::path home)
    : m_home(std::move(home))
{
}

std::vector<ReferenceRow> ReferenceRules::largeFiles(std::int64_t threshold, std::int64_t maxResults) const
{
    std::vector<std::pair<std::int64_t, fs::path>> found;
    for (const auto& path : filesBelow(m_home, m_home / "Library")) {
        if (allocatedBytes(path) >= threshold)
            found.emplace_back(allocatedBytes(path), path);
    }
    std::stable_sort(
        found.begin(), found.end(), [](const auto& left, const auto& right) { return left.first > right.first; });
    found.resize(std::min(found.size(), static_cast<std::size_t>(maxResults)));
    std::vector<ReferenceRow> rows;
    for (const auto& [size, path] : found)
        rows.emplace_back(path, shown(path), "Large Files", size, false);
    return rows;
}

std::set<std::vector<ReferenceRow>> ReferenceRules::duplicates(
    const fs::path& root, std::int64_t minimum, std::int64_t prefix) const
{
    using Member = std::pair<fs::file_time_type, fs::path>;
    std::map<std::pair<std::int64_t, std::string>, std::vector<Member>> sets;
    for (const auto& path : filesBelow(root, m_home / "Library")) {
        const auto size = static_cast<std::int64_t>(fs::file_size(path));
        if (size >= minimum)
            sets[{ size, readFile(path).substr(0, static_cast<std::size_t>(prefix)) }].emplace_back(
                fs::last_write_time(path), path);
    }
    std::set<std::vector<ReferenceRow>> found;
    for (auto& [key, members] : sets) {
        if (members.size() < 2)
            continue;
        std::stable_sort(members.begin(), members.end(),
            [](const Member& left, const Member& right) { return left.first < right.first; });
        const auto kept = shown(members.front().second);
        const auto label = kept + " \xE2\x80\x94 " + std::to_string(members.size()) + " copies, "
            + formattedBytes(key.first) + " each";
        std::vector<ReferenceRow> set;
        for (const auto& [modified, path] : members)
            set.emplace_back(path, shown(path) + (set.empty() ? " (original)" : ""), label, key.first, !set.empty());
        found.insert(set);
    }
    return found;
}

std::set<ReferenceRow> ReferenceRules::junk(const fs::path& temporary) const
{
    const std::set<std::string> inUse{ "com.apple.", "org.example.Player" };
    std::set<ReferenceRow> rows;
    addChildren(rows, m_home / "Library/Caches", "User Caches", inUse);
    addChildren(rows, m_home / "Library/Logs", "Log Files", {});
    addChildren(rows, m_home / "Library/Developer/Xcode/DerivedData", "Xcode Junk", {});
    addJunk(rows, temporary, shown(temporary), "Temporary Files", false);
    addJunk(rows, m_home / ".Trash", ".Trash", "Trash", false);
    addChildren(rows, m_home / ".cache", "User Caches", inUse);
    return rows;
}

std::int64_t ReferenceRules::totalSize(const fs::path& path)
{
    if (!isFolder(path))
        return fs::exists(path) ? allocatedBytes(path) : 0;
    std::int64_t size = 0;
    for (const auto& entry : fs::recursive_directory_iterator(path))
        size += isFile(entry.path()) ? allocatedBytes(entry.path()) : 0;
    return size;
}

} // namespace Korvane
