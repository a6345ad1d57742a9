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
    , m_deviceWork(std::make_shared<DeviceWork>())
{
    connect(&navigation, &Navigation::selectedModuleChanged, this, [this] {
        renewScreens();
        Q_EMIT selectedModuleChanged();
    });
    renewScreens();
}

void ContentViewModel::renewScreens()
{
    renewScan();
    renew(m_uninstaller, CleanerModule::uninstaller, &ContentViewModel::uninstallerChanged,
        [this] { return new UninstallerViewModel(m_host, m_applicationIcons, {}, this); });
    renew(m_maintenance, CleanerModule::maintenance, &ContentViewModel::maintenanceChanged,
        [this] { return new MaintenanceViewModel(m_host, m_maintenanceWork, this); });
    renew(m_device, CleanerModule::iosDevice, &ContentViewModel::deviceChanged,
        [this] { return new IOSDeviceViewModel(m_host, m_deviceWork, this); });
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
    if (!gone)
        return;
    // A request that comes from now on is for the new one, also where both are of the same module.
    disconnect(&m_navigation, nullptr, gone, nullptr);
    // The old screen, which goes once control returns to the event loop, still names it until then.
    gone->deleteLater();
}

template <typename ScreenModel, typename Make>
void ContentViewModel::renew(ScreenModel*& screen, CleanerModule module, void (ContentViewModel::*changed)(), Make make)
{
    const bool isShown = m_navigation.selectedModule() == module;
    if (isShown == (screen != nullptr))
        return;
    ScreenModel* gone = std::exchange(screen, isShown ? make() : nullptr);
    Q_EMIT(this->*changed)();
    // As above.
    if (gone)
        gone->deleteLater();
}

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
