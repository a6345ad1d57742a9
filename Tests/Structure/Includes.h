// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Structure/SourceText.h"

#include <string>
#include <vector>

namespace Korvane::Structure {

/// One include (or Objective-C import) of a source or header.
struct Include {
    std::size_t line = 0; ///< counted from 1
    std::string target; ///< as written, without quotes or brackets
    bool isQuoted = false;

    /// True for a header of the C++ standard library, those of C only in their C++ spelling.
    bool isStandardLibrary() const;
    /// True for what moc writes beside a source ("Name.moc", "moc_Name.cpp").
    bool isGenerated() const;
};

/// All includes of a file, in order.
std::vector<Include> includesOf(const SourceText& file);

} // namespace Korvane::Structure
