// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Localized.h"

#include <QString>

namespace Korvane {

/// A text with its places "%1" to "%9" filled with the arguments, as the function for other strings does it: where the
/// language is written from right to left, each in an isolate of its own.
template <typename... Arguments> QString filledIn(const QString& text, const Arguments&... arguments)
{
    return QString::fromStdString(filledIn(text.toStdString(), { arguments.toStdString()... }));
}

} // namespace Korvane
