// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ContentViewModel.h"

#include "Platform/VolumeCapacity.h"

#include <utility>

namespace Korvane {

namespace {

QList<ModuleViewModel*> makeModules(QObject* owner)
{
    QList<ModuleViewModel*> modules;
    for (const CleanerModule module : allCleanerModules)
        modules.append(new ModuleViewModel(module, owner));
    return modules;
}

std::optional<VolumeCapacity> startupDisk() { return volumeCapacity("/"); }

} // namespace

ContentViewModel::ContentViewModel(const Host& host, Navigation& navigation, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_navigation(navigation)
    , m_modules(makeModules(this))
    , m_cleanup(modules({ CleanerModule::systemJunk, CleanerModule::largeFiles, CleanerModule::duplicates,
          CleanerModule::uninstaller }))
    , m_speed(modules({ CleanerModule::maintenance }))
    , m_devices(modules({ CleanerModule::iosDevice }))
    , m_dashboard(m_modules, navigation, startupDisk)
    , m_access(host)
    , m_settings(host.defaults, m_access)
    , m_applicationIcons(std::make_shared<ApplicationIcons>())
    , m_maintenanceWork(std::make_shared<MaintenanceWork>())
{
    connect(&navigation, &Navigation::selectedModuleChanged, this, [this] {
        renewScan();
        renewUninstaller();
        renewMaintenance();
        Q_EMIT selectedModuleChanged();
    });
    renewScan();
    renewUninstaller();
    renewMaintenance();
}

void ContentViewModel::renewScan()
{
    const ModuleViewModel* selected = selectedModule();
    const bool hasScan = selected && selected->isGeneric();
    if (hasScan && m_scan && m_scan->module()->module() == selected->module())
        return;
    ScanViewModel* gone
        = std::exchange(m_scan, hasScan ? new ScanViewModel(selected->module(), m_host, m_navigation, this) : nullptr);
    Q_EMIT scanChanged();
    // The old screen, which goes once control returns to the event loop, still names it until then.
    if (gone)
        gone->deleteLater();
}

void ContentViewModel::renewUninstaller()
{
    const bool isShown = isSelected(CleanerModule::uninstaller);
    if (isShown == (m_uninstaller != nullptr))
        return;
    UninstallerViewModel* gone = std::exchange(
        m_uninstaller, isShown ? new UninstallerViewModel(m_host, m_applicationIcons, {}, this) : nullptr);
    Q_EMIT uninstallerChanged();
    // As above.
    if (gone)
        gone->deleteLater();
}

void ContentViewModel::renewMaintenance()
{
    const bool isShown = isSelected(CleanerModule::maintenance);
    if (isShown == (m_maintenance != nullptr))
        return;
    MaintenanceViewModel* gone
        = std::exchange(m_maintenance, isShown ? new MaintenanceViewModel(m_host, m_maintenanceWork, this) : nullptr);
    Q_EMIT maintenanceChanged();
    // As above.
    if (gone)
        gone->deleteLater();
}

bool ContentViewModel::isSelected(CleanerModule module) const { return m_navigation.selectedModule() == module; }

ModuleViewModel* ContentViewModel::moduleViewModel(CleanerModule module) const
{
    return m_modules.at(static_cast<qsizetype>(module));
}

QList<ModuleViewModel*> ContentViewModel::modules(std::initializer_list<CleanerModule> modules) const
{
    QList<ModuleViewModel*> viewModels;
    for (const CleanerModule module : modules)
        viewModels.append(moduleViewModel(module));
    return viewModels;
}

QQmlListProperty<ModuleViewModel> ContentViewModel::cleanup() { return { this, &m_cleanup }; }

QQmlListProperty<ModuleViewModel> ContentViewModel::speed() { return { this, &m_speed }; }

QQmlListProperty<ModuleViewModel> ContentViewModel::devices() { return { this, &m_devices }; }

ModuleViewModel* ContentViewModel::selectedModule() const
{
    const std::optional<CleanerModule> selected = m_navigation.selectedModule();
    return selected ? moduleViewModel(*selected) : nullptr;
}

void ContentViewModel::setSelectedModule(ModuleViewModel* module)
{
    m_navigation.setSelectedModule(module ? std::optional(module->module()) : std::nullopt);
}

} // namespace Korvane
