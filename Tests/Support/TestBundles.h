// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// The description of a bundle with this identifier, which goes into it as it stands.
inline std::string informationList(const std::string& identifier)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
           "<string>"
        + identifier + "</string></dict></plist>\n";
}

/// Makes an application with one file of so many bytes besides its description; where it lies.
inline std::filesystem::path makeBundle(
    const std::filesystem::path& path, const std::string& identifier, std::size_t bytes = 20'000)
{
    writeFile(path / "Contents/Info.plist", informationList(identifier));
    writeFile(path / "Contents/MacOS/program", bytes);
    return path;
}

} // namespace Korvane
