// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// Which way the language of the program is written.
enum class TextDirection { leftToRight, rightToLeft };

} // namespace Korvane
