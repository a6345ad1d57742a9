// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QQuickWindow>
#include <QString>

namespace Korvane {

/// Why a person would not know where the keyboard is in a window; empty when it is on something that is seen whole,
/// shows it by a ring of this colour or as the chosen command of a menu, and has a name.
QString whyKeyboardIsLost(const QQuickWindow* window, const QColor& ring);

} // namespace Korvane
