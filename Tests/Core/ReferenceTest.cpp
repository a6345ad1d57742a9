// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Each rule a second time, slow and simple over std::filesystem, run beside the real one on random homes.

#include "Core/Scanning/DuplicatesScanner.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Tests/Core/RandomHome.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Core/WalkOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

constexpr int homes = 150;
constexpr int entriesPerHome = 60;

bool isFolder(const fs::path& path) { return fs::is_directory(fs::symlink_status(path)); }

bool isFile(const fs::path& path) { return fs::is_regular_file(fs::symlink_status(path)); }

bool isHidden(const fs::path& path) { return path.filename().native().front() == '.'; }

/// The regular files that a scan of a home looks at.
std::vector<fs::path> filesOfHome(const fs::path& folder, const fs::path& library)
{
    static const std::set<std::string> never{ "node_modules", "Pods", "Carthage", "vendor", "venv", "DerivedData",
        "target", "bower_components", "__pycache__" };
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const auto extension = entry.path().extension();
        if (isHidden(entry.path()) || entry.path() == library)
            continue;
        if (isFile(entry.path()))
            files.push_back(entry.path());
        if (!isFolder(entry.path()) || never.count(entry.path().filename().native()) != 0 || extension == ".app"
            || extension == ".photoslibrary")
            continue;
        const auto inner = filesOfHome(entry.path(), library);
        files.insert(files.end(), inner.begin(), inner.end());
    }
    return files;
}

std::int64_t sizeOfTree(const fs::path& path)
{
    if (!isFolder(path))
        return fs::exists(path) ? allocatedBytes(path) : 0;
    std::int64_t size = 0;
    for (const auto& entry : fs::recursive_directory_iterator(path))
        size += isFile(entry.path()) ? allocatedBytes(entry.path()) : 0;
    return size;
}

class ReferenceTest : public ScanFixture, public testing::WithParamInterface<unsigned> {
protected:
    void fill()
    {
        RandomHome(GetParam()).fill(home(), entriesPerHome);
        RandomHome(GetParam() + 1'000'000).fill(temporary(), 3);
    }

    /// Where each path comes in the walk.
    std::map<fs::path, std::size_t> positions() const
    {
        std::map<fs::path, std::size_t> found;
        for (const auto& entry : walkOrder(home()))
            found.emplace(entry.path, found.size());
        return found;
    }
};

} // namespace

TEST_P(ReferenceTest, LargeFilesAgree)
{
    fill();
    auto position = positions();
    auto expected = filesOfHome(home(), home() / "Library");
    expected.erase(std::remove_if(expected.begin(), expected.end(),
                       [](const fs::path& path) { return allocatedBytes(path) < 4096; }),
        expected.end());
    std::sort(expected.begin(), expected.end(), [&](const fs::path& left, const fs::path& right) {
        return std::make_tuple(-allocatedBytes(left), position.at(left))
            < std::make_tuple(-allocatedBytes(right), position.at(right));
    });
    if (expected.size() > 15)
        expected.resize(15);
    EXPECT_EQ(urls(scan(LargeFilesScanner(4096, 15))), expected);
}

TEST_P(ReferenceTest, DuplicatesAgree)
{
    fill();
    auto position = positions();
    std::map<std::pair<std::uintmax_t, std::string>, std::vector<fs::path>> sets;
    for (const auto& path : filesOfHome(home(), home() / "Library")) {
        const auto size = fs::file_size(path);
        if (size >= 100)
            sets[{ size, readFile(path).substr(0, 1000) }].push_back(path);
    }
    std::set<std::vector<fs::path>> expected;
    for (auto& [key, set] : sets) {
        std::sort(set.begin(), set.end(), [&](const fs::path& left, const fs::path& right) {
            return std::make_tuple(fs::last_write_time(left), position.at(left))
                < std::make_tuple(fs::last_write_time(right), position.at(right));
        });
        if (set.size() > 1)
            expected.insert(set);
    }
    std::set<std::vector<fs::path>> found;
    std::vector<fs::path> current;
    for (const auto& item : scan(DuplicatesScanner(home(), 100, 1000))) {
        if (!item.selectableByDefault && !current.empty())
            found.insert(std::exchange(current, {}));
        current.push_back(item.url);
    }
    if (!current.empty())
        found.insert(current);
    EXPECT_EQ(found, expected);
}

TEST_P(ReferenceTest, SystemJunkAgrees)
{
    fill();
    setRunning({ "org.example.Player" });
    using Row = std::tuple<fs::path, std::string, std::int64_t, bool>;
    std::set<Row> expected;
    const auto add = [&](const fs::path& url, const char* category, bool selected) {
        if (sizeOfTree(url) > 0)
            expected.emplace(url, category, sizeOfTree(url), selected);
    };
    const auto expand = [&](const fs::path& place, const char* category, const std::set<std::string>& unselected) {
        if (!fs::is_directory(place))
            return;
        for (const auto& entry : fs::directory_iterator(place)) {
            const auto name = entry.path().filename().native();
            const bool selected = std::none_of(unselected.begin(), unselected.end(),
                [&](const std::string& part) { return name.find(part) != std::string::npos; });
            if (!isHidden(entry.path()))
                add(entry.path(), category, selected);
        }
    };
    expand(home() / "Library/Caches", "User Caches", { "com.apple.", "org.example.Player" });
    expand(home() / "Library/Logs", "Log Files", {});
    expand(home() / "Library/Developer/Xcode/DerivedData", "Xcode Junk", {});
    add(temporary(), "Temporary Files", false);
    add(home() / ".Trash", "Trash", false);
    expand(home() / ".cache", "User Caches", { "com.apple.", "org.example.Player" });
    std::set<Row> found;
    std::int64_t last = std::numeric_limits<std::int64_t>::max();
    for (const auto& item : scan(SystemJunkScanner())) {
        found.emplace(item.url, item.category, item.sizeInBytes, item.selectableByDefault);
        EXPECT_LE(item.sizeInBytes, last);
        last = item.sizeInBytes;
    }
    EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(RandomHomes, ReferenceTest, testing::Range(0U, unsigned{ homes }));

} // namespace Korvane
