// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/AppInventoryScanner.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Korvane {
namespace {

namespace fs = std::filesystem;

/// A home folder of applications with one small file and one leftover each, removed at the end.
class Applications {
public:
    explicit Applications(std::int64_t count)
    {
        std::string path = (fs::temp_directory_path() / "korvane-benchmark-XXXXXX").native();
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("no temporary folder");
        m_root = path;
        for (std::int64_t index = 0; index < count; ++index) {
            const auto identifier = "com.example.App" + std::to_string(index);
            const auto contents = m_root / "home/Applications" / (identifier + ".app") / "Contents";
            fs::create_directories(contents);
            std::ofstream(contents / "Info.plist")
                << "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" << identifier
                << "</string></dict></plist>";
            fs::create_directories(m_root / "home/Library/Caches" / identifier);
            std::ofstream(m_root / "home/Library/Caches" / identifier / "data") << "data";
        }
    }
    ~Applications() { fs::remove_all(m_root); }
    Applications(const Applications&) = delete;
    Applications& operator=(const Applications&) = delete;

    Host host() const
    {
        const auto environment = Environment::inFolder(m_root);
        return { environment, makeFileManager(environment), nullptr, nullptr, makeApplicationCatalog(environment, {}),
            nullptr };
    }

private:
    fs::path m_root;
};

void listApplications(benchmark::State& state)
{
    const Applications applications(state.range(0));
    const auto host = applications.host();
    for (auto _ : state) {
        const auto apps = AppInventoryScanner().scanApps(host, [](const ScanProgress&) {});
        if (static_cast<std::int64_t>(apps.size()) != state.range(0) || apps.front().leftovers.size() != 1)
            state.SkipWithError("the scan missed something");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listApplications)->Arg(1)->Arg(100)->Arg(1000)->UseRealTime();

} // namespace
} // namespace Korvane
