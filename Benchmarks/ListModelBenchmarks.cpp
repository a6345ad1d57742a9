// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The list models of the scan screen: what a scan makes ready in the background, and what the main thread then does.

#include "UI/Background.h"
#include "UI/Scan/CleanFailuresModel.h"
#include "UI/Scan/ScanResultsModel.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QThreadPool>

#include <string>
#include <utility>

namespace Korvane {
namespace {

/// Sets of five, the first of each not selected by default.
std::vector<ScanItem> makeItems(std::int64_t count)
{
    std::vector<ScanItem> items;
    items.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        items.emplace_back("/home/someone/Pictures/Holiday/IMG_" + std::to_string(i) + ".JPG", std::nullopt,
            "IMG_" + std::to_string(i / 5 * 5) + ".JPG \u2014 5 copies, 1 MB each", 1'000'000 + i, i % 5 != 0);
    return items;
}

std::shared_ptr<const ScanFindings> makeFindings(std::int64_t count)
{
    return std::make_shared<const ScanFindings>(makeItems(count));
}

void show(ScanResultsModel& model, const std::shared_ptr<const ScanFindings>& findings)
{
    model.setFindings(findings, ScanSelection::ofDefaults(findings));
}

void prepareFindings(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto items = makeItems(state.range(0));
        state.ResumeTiming();
        const auto findings = std::make_shared<const ScanFindings>(std::move(items));
        benchmark::DoNotOptimize(ScanSelection::ofDefaults(findings));
    }
    state.SetComplexityN(state.range(0));
}

void setItems(benchmark::State& state)
{
    const auto findings = makeFindings(state.range(0));
    ScanResultsModel model("/home/someone");
    for (auto _ : state) {
        state.PauseTiming();
        auto selection = ScanSelection::ofDefaults(findings);
        state.ResumeTiming();
        model.setFindings(findings, std::move(selection));
    }
    state.SetComplexityN(state.range(0));
}

void selectAll(benchmark::State& state)
{
    ScanResultsModel model("/home/someone");
    show(model, makeFindings(state.range(0)));
    bool ticked = false;
    for (auto _ : state)
        model.setAllTicked(ticked = !ticked);
    state.SetComplexityN(state.range(0));
}

void toggleRow(benchmark::State& state)
{
    ScanResultsModel model("/home/someone");
    show(model, makeFindings(state.range(0)));
    const auto id = model.index(model.rowCount() / 2).data(ScanResultsModel::ItemIdRole).toString();
    bool ticked = false;
    for (auto _ : state)
        model.setTicked(id, ticked = !ticked);
    state.SetComplexityN(state.range(0));
}

/// Ticks and unticks the category of the row in the middle.
void toggleCategory(benchmark::State& state, const std::shared_ptr<const ScanFindings>& findings)
{
    ScanResultsModel model("/home/someone");
    show(model, findings);
    const auto title = model.index(model.rowCount() / 2).data(ScanResultsModel::CategoryRole).toString();
    for (auto _ : state)
        model.toggleCategory(title);
    state.SetComplexityN(state.range(0));
}

void toggleOneOfManyCategories(benchmark::State& state) { toggleCategory(state, makeFindings(state.range(0))); }

void toggleTheOneCategoryOfAllRows(benchmark::State& state)
{
    std::vector<ScanItem> items = makeItems(state.range(0));
    for (auto& item : items)
        item.category = "Large Files";
    toggleCategory(state, std::make_shared<const ScanFindings>(std::move(items)));
}

void totals(benchmark::State& state)
{
    ScanResultsModel model("/home/someone");
    show(model, makeFindings(state.range(0)));
    const auto title = model.index(model.rowCount() / 2).data(ScanResultsModel::CategoryRole).toString();
    for (auto _ : state) {
        benchmark::DoNotOptimize(model.findings().totalBytes());
        benchmark::DoNotOptimize(model.selection().bytes());
        benchmark::DoNotOptimize(model.category(title));
    }
    state.SetComplexityN(state.range(0));
}

void copySelectionForCleaning(benchmark::State& state)
{
    const auto selection = ScanSelection::ofDefaults(makeFindings(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(ScanSelection(selection));
    state.SetComplexityN(state.range(0));
}

void readRow(benchmark::State& state)
{
    ScanResultsModel model("/home/someone");
    show(model, makeFindings(state.range(0)));
    const auto roles = model.roleNames().keys();
    const auto row = model.index(model.rowCount() / 2);
    for (auto _ : state) {
        for (const int role : roles)
            benchmark::DoNotOptimize(row.data(role));
    }
    state.SetComplexityN(state.range(0));
}

void showFailures(benchmark::State& state)
{
    Cleaner::Result result;
    for (auto& item : makeItems(state.range(0)))
        result.failures.push_back({ item.url, "Permission denied" });
    CleanFailuresModel model;
    for (auto _ : state) {
        state.PauseTiming();
        auto arrived = result;
        state.ResumeTiming();
        model.setResult(std::make_shared<const Cleaner::Result>(std::move(arrived)));
        state.PauseTiming();
        backgroundThreads().waitForDone();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

#define KORVANE_ROWS ->RangeMultiplier(10)->Range(1'000, 100'000)->Unit(benchmark::kMicrosecond)->Complexity()

BENCHMARK(prepareFindings) KORVANE_ROWS;
BENCHMARK(setItems) KORVANE_ROWS;
BENCHMARK(selectAll) KORVANE_ROWS;
BENCHMARK(toggleRow) KORVANE_ROWS;
BENCHMARK(toggleOneOfManyCategories) KORVANE_ROWS;
BENCHMARK(toggleTheOneCategoryOfAllRows) KORVANE_ROWS;
BENCHMARK(totals) KORVANE_ROWS;
BENCHMARK(copySelectionForCleaning) KORVANE_ROWS;
BENCHMARK(readRow) KORVANE_ROWS;
BENCHMARK(showFailures)->Iterations(20) KORVANE_ROWS;

} // namespace
} // namespace Korvane

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
