// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQuickItem>
#include <QSet>
#include <QtQmlIntegration>

namespace Korvane {

/// What a screen reader is told that the toolkit does not tell by itself. Main thread.
class ScreenReader : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether a dialog waits for an answer, so that nothing behind it is of any use.
    Q_PROPERTY(bool asking READ isAsking NOTIFY askingChanged FINAL)

public:
    using QObject::QObject;

    /// Makes bars tell their value, and a `Backstage` hide what is in it. Once, before anything is shown.
    static void install();

    bool isAsking() const { return !m_dialogs.isEmpty(); }
    /// A dialog comes, or goes; one that is destroyed has gone.
    Q_INVOKABLE void setAsking(QObject* dialog, bool asks);
    /// The value of a bar has changed.
    Q_INVOKABLE static void announceValue(QQuickItem* bar);

Q_SIGNALS:
    void askingChanged();

private:
    QSet<QObject*> m_dialogs;
};

} // namespace Korvane
