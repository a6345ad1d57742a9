// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-cancel FOLDER TIMES [--cold] [WALK]: starts each of the walks below FOLDER, or the one that is named, again and
// again, cancels it at a random moment of it, and prints how long the answer took: the median and the worst, in
// milliseconds. --cold drops the system's caches before each start, as root.

#include "Core/Scanning/DuplicatesScanner.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Platform/DirectoryEnumerator.h"
#include "Platform/FileManager.h"
#include "Platform/Host.h"
#include "Platform/TreeMeasure.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using Work = std::function<void(const Korvane::Cancellation&)>;

void dropCaches()
{
    if (std::FILE* file = std::fopen("/proc/sys/vm/drop_caches", "w")) {
        std::fputs("3", file);
        std::fclose(file);
    }
}

/// How long the work took to answer a cancel after `delay`; negative when it was done before.
double answerTime(const Work& work, std::chrono::microseconds delay)
{
    const Korvane::Cancellation cancellation;
    std::atomic<bool> isAnswered{ false };
    Clock::time_point answered;
    std::thread worker([&] {
        try {
            work(cancellation);
        } catch (const Korvane::CancellationError&) {
            answered = Clock::now();
            isAnswered = true;
        }
    });
    std::this_thread::sleep_for(delay);
    const auto asked = Clock::now();
    cancellation.cancel();
    worker.join();
    return isAnswered ? Milliseconds(answered - asked).count() : -1;
}

void measure(const char* name, const Work& work, int times, bool isCold)
{
    if (isCold)
        dropCaches();
    const auto start = Clock::now();
    work({});
    const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    std::mt19937_64 numbers(7);
    std::vector<double> answers;
    for (int time = 0; time < times; ++time) {
        if (isCold)
            dropCaches();
        const auto delay = numbers() % static_cast<std::uint64_t>(whole.count() + 1);
        const auto answer = answerTime(work, std::chrono::microseconds(delay));
        if (answer >= 0)
            answers.push_back(answer);
    }
    std::sort(answers.begin(), answers.end());
    if (answers.empty())
        std::printf("%-24s done before each cancel\n", name);
    else
        std::printf("%-24s %4zu cancels in runs of %.0f ms: median %.2f ms, worst %.2f ms\n", name, answers.size(),
            Milliseconds(whole).count(), answers[answers.size() / 2], answers.back());
}

/// A host with this home folder and this folder of caches.
Korvane::Host hostWith(const std::filesystem::path& home, const std::filesystem::path& caches)
{
    Korvane::Environment environment;
    environment.home = home;
    environment.temporaryDirectory = home / "tmp";
    environment.xdgCacheHome = caches;
    return { environment, Korvane::makeFileManager(environment), Korvane::makeWorkspace(environment), nullptr, nullptr,
        nullptr };
}

/// The walks by name. All that lies in the folder is at stake in each: it is the home folder of `host`, and the folder
/// of caches of `besideHome`.
std::vector<std::pair<const char*, Work>> walksOf(
    const std::filesystem::path& folder, const Korvane::Host& host, const Korvane::Host& besideHome)
{
    static const Korvane::ProgressHandler silent = [](const Korvane::ScanProgress&) {};
    return {
        { "enumerator",
            [&folder](const auto& cancellation) {
                Korvane::DirectoryEnumerator walk(folder, {}, cancellation);
                while (walk.next()) { }
            } },
        { "total-size", [&folder](const auto& cancellation) { Korvane::totalAllocatedSize(folder, cancellation); } },
        { "large-files",
            [&host](const auto& cancellation) { Korvane::LargeFilesScanner().scan(host, silent, cancellation); } },
        { "all-files-as-large",
            [&host](const auto& cancellation) { Korvane::LargeFilesScanner(0).scan(host, silent, cancellation); } },
        { "system-junk",
            [&besideHome](
                const auto& cancellation) { Korvane::SystemJunkScanner().scan(besideHome, silent, cancellation); } },
        { "duplicates",
            [&](const auto& cancellation) { Korvane::DuplicatesScanner(folder).scan(host, silent, cancellation); } },
        { "duplicates-of-any-size",
            [&](const auto& cancellation) { Korvane::DuplicatesScanner(folder, 0).scan(host, silent, cancellation); } },
    };
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3)
        return 2;
    const std::filesystem::path folder = arguments[1];
    const int times = std::atoi(arguments[2]);
    const bool isCold = count > 3 && std::strcmp(arguments[3], "--cold") == 0;
    const std::string_view wanted = count > (isCold ? 4 : 3) ? arguments[count - 1] : "";
    const auto host = hostWith(folder, folder / "caches");
    const auto besideHome = hostWith(folder.parent_path() / "nobody", folder);
    for (const auto& [name, work] : walksOf(folder, host, besideHome)) {
        if (wanted.empty() || wanted == name)
            measure(name, work, times, isCold);
    }
    return 0;
}
