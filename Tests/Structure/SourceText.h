// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane::Structure {

/// One file of the project as the rules read it.
struct SourceText {
    std::filesystem::path path; ///< relative to the project's root
    std::vector<std::string> lines; ///< without line ends

    /// The first folder of the path, which is the floor or the outbuilding the file belongs to.
    std::string room() const;
    bool isHeader() const;
    /// A C++ or Objective-C++ source, not a header.
    bool isSource() const;
    bool isQml() const;
};

/// Splits a text at its line ends.
SourceText sourceText(std::filesystem::path path, const std::string& text);

/// Every file of the project that its people wrote: sources, headers, QML, build files, scripts.
/// Throws std::runtime_error when a file cannot be read.
std::vector<SourceText> readProject(const std::filesystem::path& root);

} // namespace Korvane::Structure
