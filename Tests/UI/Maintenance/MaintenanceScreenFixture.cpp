// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceScreenFixture.h"

namespace Korvane {

void MaintenanceScreenFixture::install(const std::filesystem::path& folder, const std::string& label) const
{
    writeFile(folder / (label + ".plist"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string><key>Program</key><string>/opt/example/run</string></dict></plist>\n");
}

void MaintenanceScreenFixture::pressRun(int card) const
{
    QTRY_VERIFY(runButton(card) && runButton(card)->isEnabled());
    click(runButton(card));
}

QQuickItem* MaintenanceScreenFixture::itemIn(QQuickItem* item, const char* kind, const QString& name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits(kind) && accessibleName(item) == name)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = itemIn(child, kind, name))
            return found;
    }
    return nullptr;
}

QQuickItem* MaintenanceScreenFixture::agentRow(const char* label) const
{
    return itemIn(window()->contentItem(), "QQuickControl", utf8(label));
}

QQuickItem* MaintenanceScreenFixture::trashButton(const char* label) const
{
    return itemIn(window()->contentItem(), "QQuickButton", QStringLiteral("Remove ") + utf8(label));
}

} // namespace Korvane
