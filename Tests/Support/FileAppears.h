// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <filesystem>
#include <thread>

namespace Korvane {

/// Waits for a file to appear, ten seconds at most; whether it has.
inline bool appears(const std::filesystem::path& file)
{
    for (int round = 0; round < 2000 && !std::filesystem::exists(file); ++round)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return std::filesystem::exists(file);
}

} // namespace Korvane
