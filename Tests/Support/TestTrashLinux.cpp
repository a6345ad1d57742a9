// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestTrash.h"

namespace Korvane {

std::shared_ptr<FileManager> makeTestFileManager(const Environment& environment)
{
    return makeFileManager(environment);
}

std::filesystem::path testTrash(const Environment& environment) { return environment.dataHome() / "Trash/files"; }

bool isInTestTrash(const Environment& environment, const std::string& name)
{
    const auto record = environment.dataHome() / "Trash/info" / (name + ".trashinfo");
    return std::filesystem::exists(std::filesystem::symlink_status(testTrash(environment) / name))
        && std::filesystem::exists(record);
}

} // namespace Korvane
