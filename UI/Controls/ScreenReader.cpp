// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/ScreenReader.h"

#include "UI/Controls/Backstage.h"
#include "UI/Controls/BarAccess.h"

#include <QAccessible>

namespace Korvane {

namespace {

QAccessibleInterface* accessOf(const QString& type, QObject* object)
{
    if (type == QLatin1String("QQuickProgressBar"))
        return new BarAccess(static_cast<QQuickItem*>(object));
    if (type == QLatin1String(Backstage::staticMetaObject.className()))
        return new LeafAccess(static_cast<QQuickItem*>(object));
    return nullptr;
}

} // namespace

void ScreenReader::install() { QAccessible::installFactory(accessOf); }

void ScreenReader::setAsking(QObject* dialog, bool asks)
{
    const bool before = isAsking();
    if (asks) {
        m_dialogs.insert(dialog);
        connect(dialog, &QObject::destroyed, this, [this](QObject* gone) { setAsking(gone, false); });
    } else {
        m_dialogs.remove(dialog);
        dialog->disconnect(this);
    }
    if (isAsking() != before)
        Q_EMIT askingChanged();
}

void ScreenReader::announceValue(QQuickItem* bar)
{
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(bar);
    if (access == nullptr || access->valueInterface() == nullptr)
        return;
    QAccessibleValueChangeEvent event(bar, access->valueInterface()->currentValue());
    QAccessible::updateAccessibility(&event);
}

} // namespace Korvane
