// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-cancel-duplicates ROOT [ROUNDS [PREFIX]]: looks for duplicates in ROOT again and again, each time cancels at a
// random moment of the time that a whole scan takes, and prints how long the answers took.

#include "Core/Scanning/DuplicatesScanner.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// When the scan ended, cancelled or not.
Clock::time_point endOfScan(const Korvane::DuplicatesScanner& scanner, const Korvane::Cancellation& cancellation)
{
    const auto host = Korvane::makeHost(Korvane::Environment::current());
    try {
        (void)scanner.scan(
            host, [](const Korvane::ScanProgress&) {}, cancellation);
    } catch (const Korvane::CancellationError&) {
        // What was asked for.
    }
    return Clock::now();
}

double answerTime(const Korvane::DuplicatesScanner& scanner, Milliseconds delay)
{
    const Korvane::Cancellation cancellation;
    Clock::time_point cancelled;
    std::thread canceller([&] {
        std::this_thread::sleep_for(delay);
        cancelled = Clock::now();
        cancellation.cancel();
    });
    const auto end = endOfScan(scanner, cancellation);
    canceller.join();
    return Milliseconds(end - cancelled).count();
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 2) {
        std::fprintf(stderr, "usage: bench-cancel-duplicates ROOT [ROUNDS [PREFIX]]\n");
        return 2;
    }
    const int rounds = count > 2 ? std::atoi(arguments[2]) : 100;
    Korvane::DuplicatesScanner scanner(arguments[1]);
    if (count > 3)
        scanner.hashPrefixBytes = std::atoll(arguments[3]);
    const auto start = Clock::now();
    const Milliseconds whole = endOfScan(scanner, {}) - start;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> part(0, 1);
    std::vector<double> answers;
    for (int round = 0; round < rounds; ++round)
        answers.push_back(std::max(answerTime(scanner, whole * part(random)), 0.0));
    std::sort(answers.begin(), answers.end());
    std::printf("whole scan %.1f ms; answers to %d cancels: median %.2f ms, worst %.2f ms\n", whole.count(), rounds,
        answers[answers.size() / 2], answers.back());
    return 0;
}
