// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileManager.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

namespace Korvane {
namespace {

namespace fs = std::filesystem;

/// A home folder with nothing in it, in the temporary directory, and its file manager; removed at the end.
class Home {
public:
    Home()
    {
        std::string path = (fs::temp_directory_path() / "korvane-benchmark-XXXXXX").native();
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("no temporary folder");
        m_root = path;
        m_files = makeFileManager(Environment::inFolder(m_root));
    }
    ~Home() { fs::remove_all(m_root); }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    FileManager& files() { return *m_files; }
    fs::path item(const std::string& name) const { return m_root / "home" / name; }

private:
    fs::path m_root;
    std::shared_ptr<FileManager> m_files;
};

constexpr int filesInFolder = 20;

void makeFolder(const fs::path& folder)
{
    fs::create_directories(folder);
    for (int file = 0; file < filesInFolder; ++file)
        std::ofstream(folder / ("file" + std::to_string(file))) << 'x';
}

/// A tree of so many folders of twenty files each, made anew for every turn.
void removeTree(benchmark::State& state)
{
    Home home;
    for (auto _ : state) {
        state.PauseTiming();
        for (std::int64_t folder = 0; folder < state.range(0); ++folder)
            makeFolder(home.item("tree") / std::to_string(folder / 10) / std::to_string(folder));
        state.ResumeTiming();
        home.files().removeItem(home.item("tree"));
    }
    if (fs::exists(home.item("tree")))
        state.SkipWithError("something is left of the tree");
    state.SetItemsProcessed(state.iterations() * state.range(0) * filesInFolder);
}
BENCHMARK(removeTree)->RangeMultiplier(10)->Range(1, 1000)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// So many files of one folder, one after another; the Trash is emptied before every turn.
void moveToTrash(benchmark::State& state)
{
    Home home;
    const auto trashes = home.files().additionalTrashDirectories();
    if (trashes.empty()) {
        state.SkipWithError("the Trash of this host is the user's own");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(trashes.front());
        fs::create_directories(home.item("items"));
        for (std::int64_t file = 0; file < state.range(0); ++file)
            std::ofstream(home.item("items") / std::to_string(file)) << 'x';
        state.ResumeTiming();
        const auto run = home.files().beginTrashing();
        for (std::int64_t file = 0; file < state.range(0); ++file)
            home.files().trashItem(home.item("items") / std::to_string(file));
    }
    if (!fs::is_empty(home.item("items")))
        state.SkipWithError("something was not moved");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(moveToTrash)->Arg(1)->Arg(1000)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
} // namespace Korvane
