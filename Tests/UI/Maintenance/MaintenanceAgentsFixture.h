// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Maintenance/MaintenanceHome.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "UI/MaintenanceViewModel.h"

#include <QtTest>

#include <filesystem>
#include <memory>
#include <string>

namespace Korvane {

/// Background items in real folders, with the Trash of the test and a service manager that it plays.
class MaintenanceAgentsFixture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    Host& host() const { return m_home->test.host; }
    std::filesystem::path home() const { return host().environment.home; }
    std::filesystem::path userAgents() const { return home() / "Library/LaunchAgents"; }
    std::filesystem::path systemAgents() const { return host().environment.machineLibrary / "LaunchAgents"; }
    std::filesystem::path systemDaemons() const { return host().environment.machineLibrary / "LaunchDaemons"; }
    static void install(const std::filesystem::path& folder, const std::string& label, const std::string& program = {});
    void make();
    void load();
    /// Removes the first agent of this label, however the service manager ends.
    void remove(const std::string& label, int managerStatus);
    QStringList labels() const;
    LaunchAgent agent(const std::string& label) const;
    QString idOf(const std::string& label) const { return QString::fromStdString(agent(label).id.toString()); }

    std::unique_ptr<MaintenanceHome> m_home;
    std::unique_ptr<MaintenanceViewModel> m_model;
};

} // namespace Korvane
