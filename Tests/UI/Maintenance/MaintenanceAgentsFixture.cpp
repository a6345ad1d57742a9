// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceAgentsFixture.h"

#include <QSignalSpy>

#include <stdexcept>

namespace Korvane {

void MaintenanceAgentsFixture::init()
{
    m_home = std::make_unique<MaintenanceHome>();
    make();
}

void MaintenanceAgentsFixture::cleanup()
{
    m_model.reset();
    drain();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void MaintenanceAgentsFixture::install(
    const std::filesystem::path& folder, const std::string& label, const std::string& program)
{
    const std::string runs = program.empty() ? "" : "<key>Program</key><string>" + program + "</string>";
    writeFile(folder / (label + ".plist"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string>" + runs + "</dict></plist>\n");
}

void MaintenanceAgentsFixture::make() { m_model = std::make_unique<MaintenanceViewModel>(host(), m_home->work); }

void MaintenanceAgentsFixture::load()
{
    QSignalSpy loaded(m_model.get(), &MaintenanceViewModel::agentsChanged);
    m_model->loadAgents();
    QTRY_COMPARE(loaded.count(), 1);
}

void MaintenanceAgentsFixture::remove(const std::string& label, int managerStatus)
{
    m_home->processes->end(
        ".plist", TestProcessRunner::exited(managerStatus, "Boot-out failed: 5: Input/output error"));
    QSignalSpy loaded(m_model.get(), &MaintenanceViewModel::agentsChanged);
    m_model->remove(agent(label));
    QTRY_COMPARE(loaded.count(), 1);
}

QStringList MaintenanceAgentsFixture::labels() const
{
    QStringList labels;
    for (const LaunchAgent& agent : m_model->agents())
        labels.append(QString::fromStdString(agent.label));
    return labels;
}

LaunchAgent MaintenanceAgentsFixture::agent(const std::string& label) const
{
    for (const LaunchAgent& agent : m_model->agents()) {
        if (agent.label == label)
            return agent;
    }
    throw std::out_of_range(label + " is not listed");
}

} // namespace Korvane
