// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

namespace Korvane {

/// The accessible name of a control; empty when it has none.
QString accessibleName(const QObject* item);

/// The visible control with this accessible name in the window; null when there is none.
QQuickItem* control(const QQuickWindow* window, const QString& accessibleName);

/// All visible controls with this accessible name, in drawing order.
QList<QQuickItem*> controls(const QQuickWindow* window, const QString& accessibleName);

/// All visible items with this accessible name, whether Tab leads there or not, in drawing order.
QList<QQuickItem*> itemsNamed(const QQuickWindow* window, const QString& accessibleName);

/// Every text that can be seen in the window, in drawing order.
QStringList visibleTexts(const QQuickWindow* window);

/// Presses the left button on the middle of the control.
void click(QQuickItem* item);

/// The accessible names of the controls that Tab reaches one after the other, from the first to where it repeats.
QStringList tabOrder(QQuickWindow* window);

} // namespace Korvane
