// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/Backstage.h"

#include <QAccessible>

namespace Korvane {

void Backstage::setClosed(bool closed)
{
    if (m_closed == closed)
        return;
    m_closed = closed;
    // Whoever is bound to it takes the pane into the tree, or out of it.
    Q_EMIT closedChanged();
    QAccessibleEvent event(this, closed ? QAccessible::ObjectShow : QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&event);
}

} // namespace Korvane
