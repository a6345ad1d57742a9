// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"
#include "Platform/PackageExtensions.h"
#include "Platform/TreeMeasure.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Korvane {
namespace {

namespace fs = std::filesystem;

/// Folders of twelve files each, ten to a group, removed at the end.
class Tree {
public:
    explicit Tree(std::int64_t folders)
        : m_entries(folders * 13 + (folders + 9) / 10)
    {
        std::string path = (fs::temp_directory_path() / "korvane-benchmark-XXXXXX").native();
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("no temporary folder");
        m_root = path;
        for (std::int64_t folder = 0; folder < folders; ++folder) {
            const auto place = m_root / std::to_string(folder / 10) / ("folder" + std::to_string(folder));
            fs::create_directories(place);
            for (int file = 0; file < 12; ++file)
                std::ofstream(place / ("file" + std::to_string(file) + ".txt"));
        }
    }
    ~Tree() { fs::remove_all(m_root); }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    const fs::path& root() const { return m_root; }
    std::int64_t entries() const { return m_entries; }

private:
    fs::path m_root;
    std::int64_t m_entries;
};

void enumerateTree(benchmark::State& state, PrefetchedValues values)
{
    const Tree tree(state.range(0));
    for (auto _ : state) {
        EnumerationOptions options;
        options.values = values;
        DirectoryEnumerator walk(tree.root(), options);
        std::int64_t count = 0;
        while (walk.next())
            ++count;
        if (count != tree.entries())
            state.SkipWithError("the walk missed something");
    }
    state.SetItemsProcessed(state.iterations() * tree.entries());
}
BENCHMARK_CAPTURE(enumerateTree, withValues, PrefetchedValues::FileValues)->Arg(1)->Arg(100)->Arg(4000)->UseRealTime();
BENCHMARK_CAPTURE(enumerateTree, typesOnly, PrefetchedValues::TypeOnly)->Arg(1)->Arg(100)->Arg(4000)->UseRealTime();

/// As a search for large files does it: the files, all too small, are counted in the readers.
void passOverSmallFiles(benchmark::State& state)
{
    const Tree tree(state.range(0));
    for (auto _ : state) {
        EnumerationOptions options;
        options.values = PrefetchedValues::AllocatedSizes;
        options.smallestAllocatedSize = 1'000'000;
        DirectoryEnumerator walk(tree.root(), options);
        std::int64_t count = 0;
        while (const auto* entry = walk.next())
            count += entry->passedOver() > 0 ? entry->passedOver() : 1;
        if (count != tree.entries())
            state.SkipWithError("the walk missed something");
    }
    state.SetItemsProcessed(state.iterations() * tree.entries());
}
BENCHMARK(passOverSmallFiles)->Arg(1)->Arg(100)->Arg(4000)->UseRealTime();

void measureTree(benchmark::State& state)
{
    const Tree tree(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(totalAllocatedSize(tree.root()));
    state.SetItemsProcessed(state.iterations() * tree.entries());
}
BENCHMARK(measureTree)->Arg(1)->Arg(100)->Arg(4000)->UseRealTime();

void recognisePackage(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(hasPackageExtension("Photos Library.photoslibrary"));
        benchmark::DoNotOptimize(hasPackageExtension("com.example.cache.data"));
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(recognisePackage);

} // namespace
} // namespace Korvane
