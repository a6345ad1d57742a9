// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanProgressTexts.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/Localized.h"

namespace Korvane {

ScanProgressTexts ScanProgressTexts::of(const ScanProgress& progress)
{
    ScanProgressTexts texts;
    texts.foundText = tr("%Ln found", nullptr, pluralCount(progress.itemsFound));
    texts.foundBytesText = QString::fromStdString(formattedBytes(progress.bytesFound));
    texts.currentPath = QString::fromStdString(progress.currentPath);
    return texts;
}

} // namespace Korvane
