// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/DuplicatesScanner.h"
#include "Platform/FileDigest.h"
#include "Platform/Sha256.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Korvane {
namespace {

namespace fs = std::filesystem;

/// Files of one size in one folder, each of `copies` files with the same content; removed at the end.
class Candidates {
public:
    Candidates(std::int64_t files, std::size_t size, std::int64_t copies)
    {
        const fs::path memory = "/dev/shm"; // Where there is such a place, no disk has a part in the figures.
        auto path = ((fs::is_directory(memory) ? memory : fs::temp_directory_path()) / "korvane-hash-XXXXXX").native();
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("no temporary folder");
        m_root = path;
        std::string content(size, 'c');
        for (std::int64_t file = 0; file < files; ++file) {
            const auto number = std::to_string(1'000'000'000 + file / copies);
            content.replace(0, number.size(), number);
            m_files.push_back(m_root / ("file" + std::to_string(file)));
            std::ofstream(m_files.back(), std::ios::binary) << content;
        }
    }
    ~Candidates() { fs::remove_all(m_root); }
    Candidates(const Candidates&) = delete;
    Candidates& operator=(const Candidates&) = delete;

    const fs::path& root() const { return m_root; }
    const std::vector<fs::path>& files() const { return m_files; }

private:
    fs::path m_root;
    std::vector<fs::path> m_files;
};

/// A whole scan among small files of one size: what walking, opening, grouping and reporting cost for each.
void groupOneSize(benchmark::State& state, std::int64_t copies)
{
    const Candidates candidates(state.range(0), 100, copies);
    const auto host = makeHost(Environment::current());
    const DuplicatesScanner scanner(candidates.root(), 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(scanner.scan(host, [](const ScanProgress&) {}, {}));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_CAPTURE(groupOneSize, allDifferent, 1)->Arg(10)->Arg(1000)->Arg(100'000)->UseRealTime();
BENCHMARK_CAPTURE(groupOneSize, setsOfFour, 4)->Arg(10)->Arg(1000)->Arg(100'000)->UseRealTime();

/// Prefixes that are in memory: reading and hashing at the same time.
void hashPrefixes(benchmark::State& state)
{
    constexpr std::int64_t files = 32;
    const Candidates candidates(files, static_cast<std::size_t>(state.range(0)), 1);
    const auto pathAt = [&](std::size_t index) -> const fs::path& { return candidates.files()[index]; };
    for (auto _ : state) {
        FileDigest digest(candidates.files().size(), pathAt, DuplicatesScanner::defaultHashPrefixBytes);
        for (std::int64_t file = 0; file < files; ++file)
            benchmark::DoNotOptimize(digest.nextPrefixHash());
    }
    state.SetBytesProcessed(state.iterations() * files * state.range(0));
}
BENCHMARK(hashPrefixes)->Arg(65'536)->Arg(1'048'576)->Arg(4'194'304)->UseRealTime();

/// The library alone, for comparison.
void hashMemory(benchmark::State& state)
{
    const std::string bytes(static_cast<std::size_t>(state.range(0)), 'm');
    for (auto _ : state) {
        Sha256 sha256;
        sha256.update(bytes.data(), bytes.size());
        benchmark::DoNotOptimize(sha256.finalize());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(hashMemory)->Arg(65'536)->Arg(4'194'304);

} // namespace
} // namespace Korvane
