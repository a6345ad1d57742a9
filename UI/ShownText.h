// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace Korvane {

/// Texts with names of files in them, as they are drawn.
class ShownText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The text with every stretch that is written from right to left in an isolate of its own (Unicode Standard Annex
    /// 9, FSI and PDI), so that it turns nothing around it: the folders of a path stay in their order, an extension
    /// stays at the end, and what we say beside a name stays where we put it. A line that was filled in and has
    /// isolates stays as it is. For drawing alone: no longer equal to the name.
    Q_INVOKABLE static QString isolated(const QString& text);
};

} // namespace Korvane
