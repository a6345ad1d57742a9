// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/NamesOfAnyBytes.h"

#include "Tests/Support/TemporaryFolder.h"

#include <system_error>

namespace Korvane {

bool takesNamesOfAnyBytes(const std::filesystem::path& folder)
{
    const TemporaryFolder inside(folder);
    std::error_code refusal;
    return std::filesystem::create_directory(inside / "\xFF", refusal);
}

} // namespace Korvane
