// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/AfcListingExercise.h"
#include "Tests/Fuzz/PropertyListSeeds.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

/// Writes the seeds of the fuzzer that is named into a folder, one file each, for libFuzzer to begin with.
int main(int argc, char** argv)
{
    const std::string fuzzer = argc == 3 ? argv[1] : "";
    if (fuzzer != "PropertyListFuzzer" && fuzzer != "AfcListingFuzzer") {
        std::fputs("usage: make-corpus PropertyListFuzzer|AfcListingFuzzer FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder(argv[2]);
    const bool isListing = fuzzer == "AfcListingFuzzer";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    int number = 0;
    for (const auto& seed : isListing ? Korvane::afcListingSeeds() : Korvane::propertyListSeeds()) {
        std::ofstream file(folder / ("seed-" + std::to_string(number++)), std::ios::binary);
        file << seed;
        if (!file.flush()) {
            std::fputs("make-corpus: cannot write the seeds\n", stderr);
            return 1;
        }
    }
    return 0;
}
