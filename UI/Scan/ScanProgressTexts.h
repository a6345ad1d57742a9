// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanProgress.h"

#include <QCoreApplication>
#include <QString>
#include <QtQmlIntegration>

namespace Korvane {

/// What the screen says while a scan runs.
class ScanProgressTexts {
    Q_GADGET
    QML_VALUE_TYPE(scanProgressTexts)
    Q_DECLARE_TR_FUNCTIONS(Korvane::ScanProgressTexts)
    Q_PROPERTY(QString foundText MEMBER foundText)
    Q_PROPERTY(QString foundBytesText MEMBER foundBytesText)
    Q_PROPERTY(QString currentPath MEMBER currentPath)

public:
    QString foundText; ///< How many items.
    QString foundBytesText; ///< Their total size.
    QString currentPath; ///< What is being examined; empty before the first report.

    /// In the user's locale.
    static ScanProgressTexts of(const ScanProgress& progress);
};

} // namespace Korvane
