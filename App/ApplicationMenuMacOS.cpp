// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/ApplicationMenu.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace Korvane {

std::shared_ptr<QMenuBar> makeApplicationMenu(std::function<void()> openSettings)
{
    // A menu bar without a parent is the one of all windows; the role moves the command to the application menu.
    auto bar = std::make_shared<QMenuBar>();
    QMenu* menu = bar->addMenu(QCoreApplication::translate("ApplicationMenu", "Korvane"));
    QAction* settings = menu->addAction(QCoreApplication::translate("ApplicationMenu", "Settings…"));
    settings->setMenuRole(QAction::PreferencesRole);
    QObject::connect(settings, &QAction::triggered, bar.get(), std::move(openSettings));
    return bar;
}

} // namespace Korvane
