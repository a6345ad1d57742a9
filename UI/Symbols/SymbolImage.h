// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>

namespace Korvane {

/// A square picture of the symbol `name`, `pixels` wide, in `color`; null when there is no such symbol.
///
/// What is black in the drawing takes the colour, what is white becomes a hole. Main thread, or the render thread
/// while the main thread waits for it. Recent pictures are kept.
QImage symbolImage(const QString& name, int pixels, const QColor& color);

/// The names of all symbols, sorted.
QStringList symbolNames();

} // namespace Korvane
