// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Appearance.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>

#include <memory>

namespace Korvane {

/// The theme of an engine of its own, and the appearance that it follows; both null when the theme cannot be loaded.
class LoadedTheme {
public:
    LoadedTheme()
    {
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(&m_engine);
        component.setData("import QtQml\nimport Korvane.UI\n"
                          "QtObject { property QtObject theme: Theme; property QtObject appearance: Appearance }",
            QUrl());
        const std::unique_ptr<QObject> holder(component.create());
        if (!holder)
            return;
        m_theme = holder->property("theme").value<QObject*>();
        m_appearance = qobject_cast<Appearance*>(holder->property("appearance").value<QObject*>());
    }

    QObject* theme() const { return m_theme; }
    Appearance* appearance() const { return m_appearance; }
    QVariant member(const char* name) const { return m_theme->property(name); }
    QColor color(const char* name) const { return member(name).value<QColor>(); }

private:
    QQmlEngine m_engine;
    QObject* m_theme = nullptr;
    Appearance* m_appearance = nullptr;
};

} // namespace Korvane
