// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-trash HOME FOLDER: moves everything in FOLDER to the Trash of HOME, one by one, as the application does.

#include "Platform/FileError.h"
#include "Platform/FileManager.h"

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "usage: bench-trash HOME FOLDER\n");
        return 2;
    }
    Korvane::Environment environment;
    environment.home = arguments[1];
    const auto files = Korvane::makeFileManager(environment);
    try {
        const auto run = files->beginTrashing();
        for (const auto& path : files->contentsOfDirectory(arguments[2]))
            files->trashItem(path);
    } catch (const Korvane::FileError& error) {
        std::fprintf(stderr, "%s: %s\n", error.path().c_str(), error.what());
        return 1;
    }
    return 0;
}
