// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/CleanedTexts.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/Localized.h"
#include "UI/FilledText.h"

#include <iterator>

namespace Korvane {

CleanedTexts CleanedTexts::of(const Cleaner::Result& result)
{
    const int failureCount = pluralCount(std::ssize(result.failures));
    CleanedTexts texts;
    texts.heading = filledIn(tr("%1 cleaned"), QString::fromStdString(formattedBytes(result.cleanedBytes)));
    texts.countLine = tr("%Ln items moved to Trash or removed", nullptr, pluralCount(result.cleanedCount));
    if (failureCount > 0)
        texts.failuresLine = tr("%Ln items could not be removed", nullptr, failureCount);
    return texts;
}

} // namespace Korvane
