// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/PropertyListSeeds.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

/// Writes the seeds into the folder that is named, one file each, for libFuzzer to begin with.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: make-corpus FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    int number = 0;
    for (const auto& seed : Korvane::propertyListSeeds()) {
        std::ofstream file(folder / ("seed-" + std::to_string(number++)), std::ios::binary);
        file << seed;
        if (!file.flush()) {
            std::fputs("make-corpus: cannot write the seeds\n", stderr);
            return 1;
        }
    }
    return 0;
}
