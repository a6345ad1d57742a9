// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanConfirmation.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/FilledText.h"

namespace Korvane {

ScanConfirmation ScanConfirmation::of(std::int64_t selectedBytes, bool movesToTrash)
{
    const QString size = QString::fromStdString(formattedBytes(selectedBytes));
    ScanConfirmation confirmation;
    confirmation.destructive = !movesToTrash;
    if (movesToTrash) {
        confirmation.text = filledIn(tr("%1 will be moved to Trash. You can restore it from there."), size);
        confirmation.consent = tr("Move to Trash");
    } else {
        confirmation.text = filledIn(tr("%1 will be permanently deleted."), size);
        confirmation.consent = tr("Delete Permanently");
    }
    return confirmation;
}

} // namespace Korvane
