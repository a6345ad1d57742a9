// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TemporaryDirectory.h"

namespace Korvane {

std::filesystem::path systemTemporaryDirectory()
{
    auto folder = absolutePathVariable("TMPDIR");
    return folder.empty() ? std::filesystem::path("/tmp") : folder;
}

} // namespace Korvane
