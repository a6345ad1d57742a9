// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Controls/LeafAccess.h"

namespace Korvane {

/// A bar of Qt's templates as a screen reader finds it: with how far it is, in whole percent, which the toolkit does
/// not tell of bars; busy and without a value where nobody knows. Main thread.
class BarAccess : public LeafAccess, public QAccessibleValueInterface {
public:
    using LeafAccess::LeafAccess;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override { return QAccessible::ProgressBar; }
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    /// A bar is not moved.
    void setCurrentValue(const QVariant&) override { }
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    bool isIndeterminate() const;
};

} // namespace Korvane
