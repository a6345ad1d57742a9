// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-remove PATH...: removes each as the application does.

#include "Platform/FileError.h"
#include "Platform/FileManager.h"

#include <cstdio>

int main(int count, char** arguments)
{
    const auto files = Korvane::makeFileManager(Korvane::Environment::current());
    for (int index = 1; index < count; ++index) {
        try {
            files->removeItem(arguments[index]);
        } catch (const Korvane::FileError& error) {
            std::fprintf(stderr, "%s: %s\n", arguments[index], error.what());
            return 1;
        }
    }
    return 0;
}
