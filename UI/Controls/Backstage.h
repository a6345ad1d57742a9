// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QQuickItem>

namespace Korvane {

/// What is behind the dialogs and menus of a window: a focus scope, which has the keyboard again, where it was, as soon
/// as none of them is left. While it is closed a screen reader finds nothing in it: an empty pane is in its place. Main
/// thread.
class Backstage : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool closed READ isClosed WRITE setClosed NOTIFY closedChanged FINAL)

public:
    explicit Backstage(QQuickItem* parent = nullptr);

    bool isClosed() const { return m_closed; }
    void setClosed(bool closed);

Q_SIGNALS:
    void closedChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private Q_SLOTS:
    /// The item that has the keyboard may show it, or no longer.
    void noteRing();

private:
    /// Takes the keyboard soon if nothing has it by then.
    void keepKeyboard();
    void takeKeyboard();
    /// Whether the window has the keyboard, and no item in it.
    bool isKeyboardLost() const;

    /// Remembers what has the keyboard, and whether it shows that.
    void follow(QQuickItem* item);

    QPointer<QQuickItem> m_last;
    bool m_showed = false;
    bool m_closed = false;
    bool m_isDue = false;
};

} // namespace Korvane
