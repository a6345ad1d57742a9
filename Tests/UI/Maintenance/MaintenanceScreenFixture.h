// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/UI/Maintenance/StandInInterpreter.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QTest>

#include <filesystem>
#include <string>

namespace Korvane {

/// The page of maintenance in the real window, with an interpreter of the test's own and a real Trash.
class MaintenanceScreenFixture : public ScanScreenFixture {
    Q_OBJECT

protected:
    void install(const std::filesystem::path& folder, const std::string& label) const;
    std::filesystem::path userAgents() const { return home() / "Library/LaunchAgents"; }
    std::filesystem::path systemAgents() const { return m_test->host.environment.machineLibrary / "LaunchAgents"; }
    StandInInterpreter interpreter() const { return { m_test->host.environment, *m_folder / "told" }; }
    /// The button of a task's card, in the order of the cards.
    QQuickItem* runButton(int card) const { return controls(window(), QStringLiteral("Run")).value(card); }
    void pressRun(int card) const;
    /// The row of an agent, or the button in it; null when it cannot be seen.
    QQuickItem* agentRow(const char* label) const;
    QQuickItem* trashButton(const char* label) const;

private:
    static QQuickItem* itemIn(QQuickItem* item, const char* kind, const QString& name);
};

} // namespace Korvane
