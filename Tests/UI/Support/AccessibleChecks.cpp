// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/AccessibleChecks.h"

#include "Tests/UI/Support/AccessibleTree.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <functional>
#include <utility>

namespace Korvane {

namespace {

using Visit = std::function<void(QQuickItem*)>;

/// Whether a dialog is in front of it, so that nothing in it is to be found.
bool isClosed(const QQuickItem* item)
{
    return item->inherits("Korvane::Backstage") && item->property("closed").toBool();
}

void eachShown(QQuickItem* item, const Visit& visit)
{
    if (!isShown(item) || isClosed(item))
        return;
    visit(item);
    for (QQuickItem* child : item->childItems())
        eachShown(child, visit);
}

bool fits(const AccessibleNode& node)
{
    struct Kind {
        const char* type;
        QAccessible::Role role;
    };
    static constexpr Kind kinds[] = { { "QQuickTextField", QAccessible::EditableText },
        { "QQuickCheckBox", QAccessible::CheckBox }, { "QQuickSwitch", QAccessible::CheckBox },
        { "QQuickCheckDelegate", QAccessible::CheckBox }, { "QQuickTabButton", QAccessible::PageTab },
        { "QQuickMenuItem", QAccessible::MenuItem }, { "QQuickButton", QAccessible::PushButton } };
    for (const Kind& kind : kinds) {
        if (node.item->inherits(kind.type))
            return node.role() == kind.role;
    }
    static const QList<QAccessible::Role> others{ QAccessible::PushButton, QAccessible::CheckBox, QAccessible::ListItem,
        QAccessible::TreeItem, QAccessible::Link, QAccessible::List, QAccessible::Tree };
    return others.contains(node.role());
}

// A button in a row need not take the keyboard: the row has it, and does the same.
bool servesARow(const AccessibleTree& tree, const AccessibleNode& node)
{
    const AccessibleNode* list = tree.around(node.item->parentItem(), { QAccessible::List });
    return list != nullptr && !node.item->activeFocusOnTab();
}

QStringList missingStates(const AccessibleTree& tree, const AccessibleNode& node)
{
    QStringList missing;
    const QAccessible::State state = node.state();
    if (!state.focusable && node.role() != QAccessible::MenuItem && !servesARow(tree, node))
        missing.append(QStringLiteral("focusable"));
    if (node.role() == QAccessible::CheckBox) {
        const int ticks = node.item->inherits("QQuickCheckBox") || node.item->inherits("QQuickCheckDelegate")
            ? node.item->property("checkState").toInt()
            : node.item->property("checked").isValid() && node.item->property("checked").toBool() ? Qt::Checked
                                                                                                  : Qt::Unchecked;
        if (!state.checkable)
            missing.append(QStringLiteral("checkable"));
        if (state.checked != (ticks == Qt::Checked))
            missing.append(QStringLiteral("checked as it is"));
        if (state.checkStateMixed != (ticks == Qt::PartiallyChecked))
            missing.append(QStringLiteral("mixed as it is"));
    }
    if (state.focused != node.item->hasActiveFocus())
        missing.append(QStringLiteral("focused as it is"));
    return missing;
}

void checkActive(const AccessibleTree& tree, const AccessibleNode& node, QStringList& problems)
{
    if (node.name().isEmpty())
        problems.append(QStringLiteral("has no name: ") + node.title());
    if (!fits(node))
        problems.append(QStringLiteral("has a role that does not fit: ") + node.title());
    for (const QString& missing : missingStates(tree, node))
        problems.append(QStringLiteral("is not told to be %1: ").arg(missing) + node.title());
    if (!node.item->isEnabled() && !node.state().disabled
        && !node.description().contains(QStringLiteral("unavailable"), Qt::CaseInsensitive))
        problems.append(QStringLiteral("does not tell that it is of no use now: ") + node.title());
    // Qt offers the press of some roles by itself, but does nothing for it.
    const bool isOffered = node.role() == QAccessible::PushButton || node.role() == QAccessible::CheckBox;
    const auto presses = node.actions().count(QAccessibleActionInterface::pressAction());
    if (node.item->inherits("QQuickAbstractButton") && presses < (isOffered ? 2 : 1))
        problems.append(QStringLiteral("cannot be pressed: ") + node.title());
}

void checkPassive(const AccessibleNode& node, QStringList& problems)
{
    static const QList<QAccessible::Role> unnamed{ QAccessible::ScrollBar, QAccessible::Separator };
    if (node.role() == QAccessible::NoRole || node.role() == QAccessible::Client)
        problems.append(QStringLiteral("is in the tree without a role: ") + node.title());
    if (node.name().isEmpty() && !unnamed.contains(node.role()))
        problems.append(QStringLiteral("is in the tree without a name: ") + node.title());
    if (node.role() == QAccessible::ProgressBar) {
        QAccessibleValueInterface* value = node.interface->valueInterface();
        if (value == nullptr ? !node.state().busy : !value->currentValue().isValid())
            problems.append(QStringLiteral("does not tell its value: ") + node.title());
    }
    if (node.role() == QAccessible::Graphic && node.description().isEmpty())
        problems.append(QStringLiteral("does not tell what it shows: ") + node.title());
}

// Nobody hears capitals.
bool says(const AccessibleNode& node, const QString& text)
{
    const QStringList heard{ node.name(), node.description(), spoken(node.interface->text(QAccessible::Value)) };
    return std::any_of(
        heard.begin(), heard.end(), [&](const QString& words) { return words.contains(text, Qt::CaseInsensitive); });
}

bool isRead(const AccessibleTree& tree, const QQuickItem* item, const QString& text)
{
    for (; item != nullptr; item = item->parentItem()) {
        const AccessibleNode* node = tree.node(item);
        if (node != nullptr && says(*node, text))
            return true;
    }
    return false;
}

void checkText(const AccessibleTree& tree, const QQuickItem* item, QStringList& problems)
{
    const QString text = spoken(item->property("text").toString());
    static const QRegularExpression words(QStringLiteral("[\\p{L}\\p{N}]"));
    if (!text.contains(words) || item->width() <= 0)
        return;
    if (!isRead(tree, item, text))
        problems.append(QStringLiteral("can be seen and not read: ") + text);
    const AccessibleNode* node = tree.node(item);
    constexpr int smallestTitle = 17;
    if (node != nullptr && node->role() != QAccessible::Heading
        && item->property("font").value<QFont>().pixelSize() >= smallestTitle
        && item->property("font").value<QFont>().weight() >= QFont::DemiBold)
        problems.append(QStringLiteral("looks like a heading and is none: ") + text);
}

void checkDecorations(const AccessibleTree& tree, const QQuickItem* item, QStringList& problems)
{
    const AccessibleNode* node = tree.node(item);
    if (node != nullptr
        && (item->inherits("QQuickImage") || item->inherits("Korvane::Symbol") || item->inherits("QQuickPaintedItem")))
        problems.append(QStringLiteral("is a decoration and in the tree: ") + node->title());
}

void checkDialog(const AccessibleTree& tree, const QQuickWindow* window, QStringList& problems)
{
    for (const AccessibleNode& node : tree.nodes()) {
        if (node.role() != QAccessible::Dialog)
            continue;
        if (!node.item->isAncestorOf(window->activeFocusItem()))
            problems.append(QStringLiteral("does not hold the keyboard: ") + node.title());
        for (const AccessibleNode& other : tree.nodes()) {
            if (other.isActive() && !node.item->isAncestorOf(other.item))
                problems.append(QStringLiteral("can be reached behind a dialog: ") + other.title());
        }
        if (tree.around(node.item->parentItem(), { QAccessible::Dialog }) != nullptr)
            problems.append(QStringLiteral("is a dialog in a dialog: ") + node.title());
    }
}

// Not more than that nothing is read after what is wholly below it: a heading may stay over the first row.
void checkOrder(const AccessibleTree& tree, QStringList& problems)
{
    for (const AccessibleNode& list : tree.nodes()) {
        if (list.role() != QAccessible::List)
            continue;
        const AccessibleNode* before = nullptr;
        for (const AccessibleNode& node : tree.nodes()) {
            if (node.above != list.item || node.role() == QAccessible::ScrollBar)
                continue;
            if (before != nullptr
                && node.item->mapToScene(QPointF(0, node.item->height())).y() <= before->item->mapToScene({}).y())
                problems.append(QStringLiteral("is read after what is below it: ") + node.title());
            before = &node;
        }
    }
}

void checkDifferences(const AccessibleTree& tree, QStringList& problems)
{
    QSet<QString> known;
    for (const AccessibleNode& node : tree.nodes()) {
        if (!node.isActive())
            continue;
        const QString heard = QString::number(node.role()) + node.name() + QLatin1Char('\n') + node.description();
        if (known.contains(heard))
            problems.append(QStringLiteral("sounds like another one: ") + node.title());
        known.insert(heard);
    }
}

} // namespace

QStringList accessibleProblems(QQuickWindow* window)
{
    const AccessibleTree tree(window);
    QStringList problems = tree.liesAboutVisibility();
    for (const AccessibleNode& node : tree.nodes()) {
        if (node.isActive())
            checkActive(tree, node, problems);
        else
            checkPassive(node, problems);
    }
    eachShown(window->contentItem(), [&](QQuickItem* item) {
        if (item->inherits("QQuickText"))
            checkText(tree, item, problems);
        checkDecorations(tree, item, problems);
        const bool reachable = item->activeFocusOnTab() || item->inherits("QQuickAbstractButton");
        if (reachable && tree.node(item) == nullptr)
            problems.append(QStringLiteral("is not in the tree: ") + QLatin1String(item->metaObject()->className()));
    });
    checkDialog(tree, window, problems);
    checkOrder(tree, problems);
    checkDifferences(tree, problems);
    if (!std::any_of(tree.nodes().begin(), tree.nodes().end(),
            [](const AccessibleNode& node) { return node.role() == QAccessible::Heading; }))
        problems.append(QStringLiteral("there is no heading"));
    return problems;
}

namespace {

void waitUntilAtRest(QQuickWindow* window)
{
    // Only what is there already is told that a screen reader has come.
    QAccessible::setActive(true);
    // On a busy machine two looks may fall into one frame.
    constexpr int enough = 3;
    QString now = QStringLiteral("nothing yet");
    int same = 0;
    for (int rounds = 0; rounds < 100 && same < enough; ++rounds) {
        QTest::qWait(60);
        const QString before = std::exchange(now, AccessibleTree(window).outline());
        eachShown(window->contentItem(), [&](const QQuickItem* item) {
            // A figure may count up.
            if (item->inherits("QQuickText"))
                now += item->property("text").toString();
            if (item->activeFocusOnTab())
                now += QStringLiteral("%1 %2").arg(item->mapToScene({}).y()).arg(item->opacity());
        });
        same = before == now ? same + 1 : 0;
    }
}

} // namespace

void checkTree(QQuickWindow* window, const char* state)
{
    waitUntilAtRest(window);
    const QStringList problems = accessibleProblems(window);
    if (qEnvironmentVariableIsSet("KORVANE_TEST_OUTLINE"))
        fputs(qPrintable(AccessibleTree(window).outline()), stderr);
    QVERIFY2(
        problems.isEmpty(), qPrintable(QLatin1String(state) + QLatin1Char('\n') + problems.join(QLatin1Char('\n'))));
}

void checkAccess(QQuickWindow* window, const char* state)
{
    checkTree(window, state);
    const QStringList problems = keyboardProblems(window);
    QVERIFY2(
        problems.isEmpty(), qPrintable(QLatin1String(state) + QLatin1Char('\n') + problems.join(QLatin1Char('\n'))));
}

} // namespace Korvane
