// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/MenuBarViewModel.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRect>

#include <memory>

namespace Korvane {

/// The small window at the icon in the menu bar. It is made when it is first asked for.
///
/// Main thread. Goes away on its own when it loses the keyboard, on Escape, and with each of its commands.
class MenuBarPanel : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the panel.
    MenuBarPanel(QQmlEngine& engine, MenuBarViewModel& viewModel);
    ~MenuBarPanel() override;

    /// Shows the panel at the icon, which lies there on the desktop, or hides it when it is shown, or was until this
    /// very click.
    void toggle(const QRect& icon);
    void hide();

    /// The window; null until it is first shown, or when it cannot be loaded, which a broken build alone can cause.
    QQuickWindow* window() const { return m_window.get(); }

private:
    void makeWindow();
    void place();
    void cutToShape();
    void onActiveChanged();

    QQmlEngine& m_engine;
    MenuBarViewModel& m_viewModel;
    std::unique_ptr<QQuickWindow> m_window;
    QRect m_icon;
    QElapsedTimer m_sinceLeft; ///< Since it lost the keyboard and went away.
};

} // namespace Korvane
