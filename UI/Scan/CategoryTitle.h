// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string>

namespace Korvane {

/// What a person reads for a category of findings, which the rules name in English: its name in the language of the
/// program, and the name itself where it is that of a set of files.
QString categoryTitle(const std::string& category);

} // namespace Korvane
