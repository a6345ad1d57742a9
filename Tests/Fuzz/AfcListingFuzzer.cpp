// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/AfcListingExercise.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What libFuzzer calls with each input that it breeds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto wrong = Korvane::exerciseAfcListing({ reinterpret_cast<const char*>(data), size });
    if (!wrong.empty()) {
        std::fprintf(stderr, "%s\n", wrong.c_str());
        std::abort();
    }
    return 0;
}
