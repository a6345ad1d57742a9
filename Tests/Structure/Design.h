// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Structure/Rules.h"
#include "Tests/Structure/SourceText.h"

namespace Korvane::Structure {

/// One design: no QML file but Theme.qml and Metrics.qml states a colour, a size of type, a radius, a spacing, a
/// strength or a duration, and none outside UI/Controls a size either. Nothing, a whole, and halves and doubles of what is
/// named are free.
Complaints checkDesign(const SourceText& file);

} // namespace Korvane::Structure
