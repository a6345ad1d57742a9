// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

class QSvgRenderer;

namespace Korvane {

/// The drawing on a transparent square of so many pixels, as large as it fits in; null when it cannot be drawn. Any
/// thread; a renderer is used by one at a time.
QImage svgImage(QSvgRenderer& drawing, int pixels);

} // namespace Korvane
