// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanProgressTexts.h"

#include "Core/Scanning/FormattedBytes.h"

#include <QLocale>

namespace Korvane {

ScanProgressTexts ScanProgressTexts::of(const ScanProgress& progress)
{
    ScanProgressTexts texts;
    texts.foundText = tr("%1 found").arg(QLocale().toString(static_cast<qlonglong>(progress.itemsFound)));
    texts.foundBytesText = QString::fromStdString(formattedBytes(progress.bytesFound));
    texts.currentPath = QString::fromStdString(progress.currentPath);
    return texts;
}

} // namespace Korvane
