// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/CleanedTexts.h"

#include "Core/Scanning/FormattedBytes.h"

#include <QLocale>

namespace Korvane {

CleanedTexts CleanedTexts::of(const Cleaner::Result& result)
{
    const QLocale locale;
    const auto failureCount = static_cast<qlonglong>(result.failures.size());
    CleanedTexts texts;
    texts.heading = tr("%1 cleaned").arg(QString::fromStdString(formattedBytes(result.cleanedBytes)));
    texts.countLine
        = tr("%1 items moved to Trash or removed").arg(locale.toString(static_cast<qlonglong>(result.cleanedCount)));
    if (failureCount > 0)
        texts.failuresLine = tr("%1 items could not be removed").arg(locale.toString(failureCount));
    return texts;
}

} // namespace Korvane
