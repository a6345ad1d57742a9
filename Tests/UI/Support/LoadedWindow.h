// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QUrl>

#include <memory>

namespace Korvane {

/// A window made of QML text that a test brings along, in an engine of its own.
class LoadedWindow {
public:
    explicit LoadedWindow(const QByteArray& qml)
    {
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(&m_engine);
        component.setData(qml, QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
        m_errors = component.errorString();
    }

    /// Null when it cannot be loaded; `errors` tells why.
    QQuickWindow* window() const { return m_window.get(); }
    const QString& errors() const { return m_errors; }
    template <typename Value> Value property(const char* name) const
    {
        return m_window->property(name).template value<Value>();
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QString m_errors;
};

} // namespace Korvane
