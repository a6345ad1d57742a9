// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/AccessibleTree.h"

#include <QMetaEnum>
#include <QRegularExpression>

namespace Korvane {

bool isShown(const QQuickItem* item)
{
    if (!item->isVisible())
        return false;
    for (; item != nullptr; item = item->parentItem()) {
        if (item->opacity() < 0.01)
            return false;
    }
    return true;
}

QString spoken(const QString& text)
{
    static const QRegularExpression marks(QStringLiteral("[\\x{200e}\\x{200f}\\x{202a}-\\x{202e}\\x{2066}-\\x{2069}]"));
    return QString(text).remove(marks).simplified();
}

QStringList AccessibleNode::actions() const
{
    QAccessibleActionInterface* actions = interface->actionInterface();
    return actions == nullptr ? QStringList() : actions->actionNames();
}

bool AccessibleNode::isActive() const
{
    const QStringList known = actions();
    return item->activeFocusOnTab() || item->inherits("QQuickAbstractButton")
        || known.contains(QAccessibleActionInterface::pressAction())
        || known.contains(QAccessibleActionInterface::toggleAction());
}

QString AccessibleNode::title() const
{
    const char* roleName = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role());
    return QStringLiteral("%1 \"%2\" (%3)")
        .arg(QLatin1String(roleName), name(), QLatin1String(item->metaObject()->className()));
}

AccessibleTree::AccessibleTree(QQuickWindow* window)
{
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(window);
    for (int i = 0; i < root->childCount(); ++i)
        add(root->child(i), nullptr, 0);
}

const AccessibleNode* AccessibleTree::node(const QQuickItem* item) const
{
    const auto place = m_places.constFind(item);
    return place == m_places.cend() ? nullptr : &m_nodes[*place];
}

const AccessibleNode* AccessibleTree::around(const QQuickItem* item, const QList<QAccessible::Role>& roles) const
{
    for (; item != nullptr; item = item->parentItem()) {
        const AccessibleNode* found = node(item);
        if (found != nullptr && roles.contains(found->role()))
            return found;
    }
    return nullptr;
}

QString AccessibleTree::outline() const
{
    QString lines;
    for (const AccessibleNode& node : m_nodes) {
        lines += QStringLiteral("\n%1%2 – %3 [%4]")
                     .arg(QString(node.depth * 2, QLatin1Char(' ')), node.title(), node.description(),
                         node.actions().join(QLatin1Char(' ')));
        const QAccessible::State state = node.state();
        lines += QLatin1String(state.focusable ? " focusable" : "") + QLatin1String(state.focused ? " focused" : "")
            + QLatin1String(state.checked ? " checked" : "") + QLatin1String(state.checkStateMixed ? " mixed" : "")
            + QLatin1String(state.selected ? " selected" : "") + QLatin1String(state.disabled ? " disabled" : "");
    }
    return lines;
}

void AccessibleTree::add(QAccessibleInterface* interface, QQuickItem* above, int depth)
{
    auto* item = qobject_cast<QQuickItem*>(interface->object());
    if (item == nullptr)
        return;
    const AccessibleNode node{ interface, item, above, depth };
    if (interface->state().invisible == isShown(item))
        m_lies.append(QStringLiteral("whether it can be seen is told wrong: ") + node.title());
    if (interface->state().invisible)
        return;
    m_places.insert(item, int(m_nodes.size()));
    m_nodes.append(node);
    for (int i = 0; i < interface->childCount(); ++i)
        add(interface->child(i), item, depth + 1);
}

} // namespace Korvane
