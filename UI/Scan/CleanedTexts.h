// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"

#include <QCoreApplication>
#include <QString>
#include <QtQmlIntegration>

namespace Korvane {

/// What the screen says about a finished cleaning.
class CleanedTexts {
    Q_GADGET
    QML_VALUE_TYPE(cleanedTexts)
    Q_DECLARE_TR_FUNCTIONS(Korvane::CleanedTexts)
    Q_PROPERTY(QString heading MEMBER heading)
    Q_PROPERTY(QString countLine MEMBER countLine)
    Q_PROPERTY(QString failuresLine MEMBER failuresLine)

public:
    QString heading; ///< What was freed.
    QString countLine; ///< How many items went.
    QString failuresLine; ///< How many items stayed; empty when none did.

    /// In the user's locale.
    static CleanedTexts of(const Cleaner::Result& result);
};

} // namespace Korvane
