// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// Puts a script for the plain shell where a program is looked for.
inline void writeProgram(const std::filesystem::path& program, const std::string& script)
{
    writeFile(program, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(program, std::filesystem::perms(0755));
}

} // namespace Korvane
