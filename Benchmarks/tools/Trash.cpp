// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-trash HOME LIST: moves the items whose paths LIST holds, each ended by a NUL, to the Trash of HOME, one by one,
// as the application does.

#include "Platform/FileError.h"
#include "Platform/FileManager.h"

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "usage: bench-trash HOME LIST\n");
        return 2;
    }
    Korvane::Environment environment;
    environment.home = arguments[1];
    const auto files = Korvane::makeFileManager(environment);
    std::vector<std::filesystem::path> items;
    std::ifstream list(arguments[2]);
    for (std::string path; std::getline(list, path, '\0');)
        items.emplace_back(path);
    try {
        const auto run = files->beginTrashing();
        for (const auto& path : items)
            files->trashItem(path);
    } catch (const Korvane::FileError& error) {
        std::fprintf(stderr, "%s: %s\n", error.path().c_str(), error.what());
        return 1;
    }
    return items.empty() ? 1 : 0;
}
