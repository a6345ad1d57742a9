// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"
#include "UI/DashboardViewModel.h"
#include "UI/FullDiskAccessViewModel.h"
#include "UI/IOSDeviceViewModel.h"
#include "UI/MaintenanceViewModel.h"
#include "UI/ModuleViewModel.h"
#include "UI/Navigation.h"
#include "UI/ScanViewModel.h"
#include "UI/SettingsViewModel.h"
#include "UI/UninstallerViewModel.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QQmlListProperty>

#include <memory>

namespace Korvane {

/// The main window: the modules in its sidebar, which of them is shown, and the view models of its screens.
///
/// Main thread. Owns the view models that it hands out. Its end ends what still waits for another program.
class ContentViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    /// The three sections of the sidebar.
    Q_PROPERTY(QQmlListProperty<Korvane::ModuleViewModel> cleanup READ cleanup CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<Korvane::ModuleViewModel> speed READ speed CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<Korvane::ModuleViewModel> devices READ devices CONSTANT FINAL)
    /// The module that the detail area shows; null for the dashboard.
    Q_PROPERTY(Korvane::ModuleViewModel* selectedModule READ selectedModule WRITE setSelectedModule NOTIFY
            selectedModuleChanged FINAL)
    /// The scan screen of the selected module; null when it has none. A fresh one for each module that is selected.
    Q_PROPERTY(Korvane::ScanViewModel* scan READ scan NOTIFY scanChanged FINAL)
    /// The screen of the uninstaller while it is selected, else null. A fresh one each time.
    Q_PROPERTY(Korvane::UninstallerViewModel* uninstaller READ uninstaller NOTIFY uninstallerChanged FINAL)
    /// The screen of the maintenance while it is selected, else null. A fresh one each time.
    Q_PROPERTY(Korvane::MaintenanceViewModel* maintenance READ maintenance NOTIFY maintenanceChanged FINAL)
    /// The screen of the devices while it is selected, else null. A fresh one each time.
    Q_PROPERTY(Korvane::IOSDeviceViewModel* device READ device NOTIFY deviceChanged FINAL)
    Q_PROPERTY(Korvane::DashboardViewModel* dashboard READ dashboard CONSTANT FINAL)
    Q_PROPERTY(Korvane::FullDiskAccessViewModel* access READ access CONSTANT FINAL)
    Q_PROPERTY(Korvane::SettingsViewModel* settings READ settings CONSTANT FINAL)

public:
    /// `navigation` must outlive the view model.
    ContentViewModel(const Host& host, Navigation& navigation, QObject* parent = nullptr);

    QQmlListProperty<ModuleViewModel> cleanup();
    QQmlListProperty<ModuleViewModel> speed();
    QQmlListProperty<ModuleViewModel> devices();
    ModuleViewModel* selectedModule() const;
    void setSelectedModule(ModuleViewModel* module);
    ScanViewModel* scan() const { return m_scan; }
    UninstallerViewModel* uninstaller() const { return m_uninstaller; }
    MaintenanceViewModel* maintenance() const { return m_maintenance; }
    IOSDeviceViewModel* device() const { return m_device; }
    DashboardViewModel* dashboard() { return &m_dashboard; }
    FullDiskAccessViewModel* access() { return &m_access; }
    SettingsViewModel* settings() { return &m_settings; }

    /// The icons of the applications that the uninstaller lists.
    std::shared_ptr<ApplicationIcons> applicationIcons() const { return m_applicationIcons; }

    /// The view model of a module, which every list shares.
    ModuleViewModel* moduleViewModel(CleanerModule module) const;

Q_SIGNALS:
    void selectedModuleChanged();
    void scanChanged();
    void uninstallerChanged();
    void maintenanceChanged();
    void deviceChanged();
    /// The main window is to open the settings window.
    void settingsRequested();

private:
    void renewScreens();
    void renewScan();
    /// Makes the screen of a module with `make` when it is selected, and lets go of it when it is not any more.
    template <typename ScreenModel, typename Make>
    void renew(ScreenModel*& screen, CleanerModule module, void (ContentViewModel::*changed)(), Make make);
    QList<ModuleViewModel*> modules(std::initializer_list<CleanerModule> modules) const;

    const Host m_host;
    Navigation& m_navigation;
    QList<ModuleViewModel*> m_modules; ///< In declaration order.
    QList<ModuleViewModel*> m_cleanup;
    QList<ModuleViewModel*> m_speed;
    QList<ModuleViewModel*> m_devices;
    DashboardViewModel m_dashboard;
    FullDiskAccessViewModel m_access;
    SettingsViewModel m_settings;
    ScanViewModel* m_scan = nullptr; ///< A child of this.
    std::shared_ptr<ApplicationIcons> m_applicationIcons;
    UninstallerViewModel* m_uninstaller = nullptr; ///< A child of this.
    std::shared_ptr<MaintenanceWork> m_maintenanceWork; ///< Of every maintenance screen, past ones too.
    MaintenanceViewModel* m_maintenance = nullptr; ///< A child of this.
    std::shared_ptr<DeviceWork> m_deviceWork; ///< Of every screen of the devices, past ones too.
    IOSDeviceViewModel* m_device = nullptr; ///< A child of this.
};

} // namespace Korvane
