// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace Korvane {

/// What the heading of one category shows: a snapshot, taken anew after every tick.
class ScanCategory {
    Q_GADGET
    QML_VALUE_TYPE(scanCategory)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString sizeText MEMBER sizeText)
    Q_PROPERTY(int itemCount MEMBER itemCount)
    Q_PROPERTY(int tickedCount MEMBER tickedCount)
    Q_PROPERTY(int shade MEMBER shade)

public:
    QString title;    ///< Its name in the language of the program.
    QString sizeText; ///< The total size of the category's items.
    int itemCount = 0;
    int tickedCount = 0;
    int shade = -1; ///< Which colour, counted from 0; -1 for one that has none of its own.

    bool operator==(const ScanCategory&) const = default;
};

} // namespace Korvane
