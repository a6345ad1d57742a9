// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace Korvane {

/// Where a text that is too long is cut.
enum class Cut { End, Middle };

/// A text of no more than `limit` UTF-16 code units, with "…" in place of what was cut; never within what a reader
/// takes for one character. Whoever wrote the text, so much can be laid out without a pause. Any thread.
QString shortened(const QString& text, qsizetype limit, Cut cut);

/// The same for bytes from outside, as `displayText` shows them; takes no longer for many than for some.
QString shortened(std::string_view bytes, qsizetype limit, Cut cut);

} // namespace Korvane
