// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/BarAccess.h"

namespace Korvane {

namespace {

constexpr int whole = 100;

} // namespace

bool BarAccess::isIndeterminate() const { return item()->property("indeterminate").toBool(); }

void* BarAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && !isIndeterminate())
        return static_cast<QAccessibleValueInterface*>(this);
    return LeafAccess::interface_cast(type);
}

QAccessible::State BarAccess::state() const
{
    QAccessible::State state = LeafAccess::state();
    state.readOnly = true;
    state.busy = isIndeterminate();
    return state;
}

QVariant BarAccess::currentValue() const { return qRound(item()->property("position").toDouble() * whole); }

QVariant BarAccess::maximumValue() const { return whole; }

QVariant BarAccess::minimumValue() const { return 0; }

QVariant BarAccess::minimumStepSize() const { return 1; }

} // namespace Korvane
