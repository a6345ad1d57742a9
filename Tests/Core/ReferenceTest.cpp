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
#include <utility>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

using JunkRow = std::tuple<fs::path, std::string, std::int64_t, bool>;

constexpr unsigned homes = 200;
constexpr unsigned homesPerTest = 20;
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

/// One random home, and what each rule makes of it.
class Reference {
public:
    explicit Reference(unsigned seed)
    {
        RandomHome(seed).fill(home(), entriesPerHome);
        RandomHome(seed + 1'000'000).fill(temporary(), 3);
        // What a link in the place of a folder means has tests of its own.
        for (const char* place : { ".cache", ".Trash", "Library", "Library/Caches", "Library/Logs", "Library/Developer",
                 "Library/Developer/Xcode", "Library/Developer/Xcode/DerivedData" }) {
            if (fs::is_symlink(home() / place))
                fs::remove(home() / place);
        }
        for (const auto& entry : walkOrder(home()))
            m_position.emplace(entry.path, m_position.size());
        m_host.workspace->setRunning({ "org.example.Player" });
    }

    std::vector<ScanItem> scan(const JunkScanner& scanner) const
    {
        return scanner.scan(m_host.host, [](const ScanProgress&) {}, {});
    }

    fs::path home() const { return m_folder / "home"; }

    std::vector<fs::path> largeFiles(std::int64_t threshold, std::size_t count) const
    {
        auto files = filesOfHome(home(), home() / "Library");
        files.erase(std::remove_if(files.begin(), files.end(),
                        [&](const fs::path& path) { return allocatedBytes(path) < threshold; }),
            files.end());
        std::sort(files.begin(), files.end(), [&](const fs::path& left, const fs::path& right) {
            return std::make_tuple(-allocatedBytes(left), m_position.at(left))
                < std::make_tuple(-allocatedBytes(right), m_position.at(right));
        });
        files.resize(std::min(files.size(), count));
        return files;
    }

    std::set<std::vector<fs::path>> duplicates(std::size_t minimum, std::size_t prefix) const
    {
        std::map<std::pair<std::uintmax_t, std::string>, std::vector<fs::path>> sets;
        for (const auto& path : filesOfHome(home(), home() / "Library")) {
            if (fs::file_size(path) >= minimum)
                sets[{ fs::file_size(path), readFile(path).substr(0, prefix) }].push_back(path);
        }
        std::set<std::vector<fs::path>> found;
        for (auto& [key, set] : sets) {
            std::sort(set.begin(), set.end(), [&](const fs::path& left, const fs::path& right) {
                return std::make_tuple(fs::last_write_time(left), m_position.at(left))
                    < std::make_tuple(fs::last_write_time(right), m_position.at(right));
            });
            if (set.size() > 1)
                found.insert(set);
        }
        return found;
    }

    std::set<JunkRow> junk() const
    {
        const std::set<std::string> inUse{ "com.apple.", "org.example.Player" };
        std::set<JunkRow> rows;
        expand(rows, home() / "Library/Caches", "User Caches", inUse);
        expand(rows, home() / "Library/Logs", "Log Files", {});
        expand(rows, home() / "Library/Developer/Xcode/DerivedData", "Xcode Junk", {});
        add(rows, temporary(), "Temporary Files", false);
        add(rows, home() / ".Trash", "Trash", false);
        expand(rows, home() / ".cache", "User Caches", inUse);
        return rows;
    }

private:
    fs::path temporary() const { return m_folder / "tmp"; }

    static void add(std::set<JunkRow>& rows, const fs::path& url, const char* category, bool selected)
    {
        if (sizeOfTree(url) > 0)
            rows.emplace(url, category, sizeOfTree(url), selected);
    }

    static void expand(
        std::set<JunkRow>& rows, const fs::path& place, const char* category, const std::set<std::string>& unselected)
    {
        if (!fs::is_directory(place))
            return;
        for (const auto& entry : fs::directory_iterator(place)) {
            const auto name = entry.path().filename().native();
            const bool selected = std::none_of(unselected.begin(), unselected.end(),
                [&](const std::string& part) { return name.find(part) != std::string::npos; });
            if (!isHidden(entry.path()))
                add(rows, entry.path(), category, selected);
        }
    }

    TemporaryFolder m_folder;
    TestHost m_host = makeTestHost(m_folder);
    std::map<fs::path, std::size_t> m_position; ///< Where each path comes in the walk.
};

/// The sets among the items of a scan for duplicates: each begins with the one that is not pre-selected.
std::set<std::vector<fs::path>> setsOf(const std::vector<ScanItem>& items)
{
    std::set<std::vector<fs::path>> sets;
    std::vector<fs::path> current;
    for (const auto& item : items) {
        if (!item.selectableByDefault && !current.empty())
            sets.insert(std::exchange(current, {}));
        current.push_back(item.url);
    }
    if (!current.empty())
        sets.insert(current);
    return sets;
}

std::set<JunkRow> rowsOf(const std::vector<ScanItem>& items)
{
    std::set<JunkRow> rows;
    for (const auto& item : items)
        rows.emplace(item.url, item.category, item.sizeInBytes, item.selectableByDefault);
    return rows;
}

class ReferenceTest : public testing::TestWithParam<unsigned> { };

} // namespace

TEST_P(ReferenceTest, EveryRuleAgrees)
{
    for (unsigned seed = GetParam(); seed < GetParam() + homesPerTest; ++seed) {
        SCOPED_TRACE(seed);
        const Reference reference(seed);
        EXPECT_EQ(urls(reference.scan(LargeFilesScanner(4096, 15))), reference.largeFiles(4096, 15));
        EXPECT_EQ(
            setsOf(reference.scan(DuplicatesScanner(reference.home(), 100, 1000))), reference.duplicates(100, 1000));
        const auto junk = reference.scan(SystemJunkScanner());
        EXPECT_EQ(rowsOf(junk), reference.junk());
        EXPECT_TRUE(std::is_sorted(junk.begin(), junk.end(),
            [](const ScanItem& left, const ScanItem& right) { return left.sizeInBytes > right.sizeInBytes; }));
    }
}

INSTANTIATE_TEST_SUITE_P(RandomHomes, ReferenceTest, testing::Range(0U, homes, homesPerTest));

} // namespace Korvane
