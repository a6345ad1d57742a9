// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/BundleAround.h"

namespace Korvane {

std::filesystem::path bundleAround(const std::filesystem::path& program)
{
    const auto programs = program.parent_path();
    const auto contents = programs.parent_path();
    auto bundle = contents.parent_path();
    const bool isLaidOut
        = programs.filename() == "MacOS" && contents.filename() == "Contents" && bundle.extension() == ".app";
    return isLaidOut ? bundle : std::filesystem::path();
}

} // namespace Korvane
