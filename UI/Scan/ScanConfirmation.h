// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QtQmlIntegration>

#include <cstdint>

namespace Korvane {

/// What the user is asked to agree to before a cleaning.
class ScanConfirmation {
    Q_GADGET
    QML_VALUE_TYPE(scanConfirmation)
    Q_DECLARE_TR_FUNCTIONS(Korvane::ScanConfirmation)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString consent MEMBER consent)
    Q_PROPERTY(bool destructive MEMBER destructive)

public:
    QString text; ///< What will happen.
    QString consent; ///< What the confirming button says.
    bool destructive = false; ///< Whether what happens cannot be undone.

    /// For that many bytes, moved to the Trash or deleted. In the user's locale.
    static ScanConfirmation of(std::int64_t selectedBytes, bool movesToTrash);
};

} // namespace Korvane
