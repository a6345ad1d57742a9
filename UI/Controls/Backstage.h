// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickItem>

namespace Korvane {

/// What is behind the dialogs of a window. While it is closed a screen reader finds nothing in it: an empty pane is in
/// its place. Main thread.
class Backstage : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool closed READ isClosed WRITE setClosed NOTIFY closedChanged FINAL)

public:
    using QQuickItem::QQuickItem;

    bool isClosed() const { return m_closed; }
    void setClosed(bool closed);

Q_SIGNALS:
    void closedChanged();

private:
    bool m_closed = false;
};

} // namespace Korvane
