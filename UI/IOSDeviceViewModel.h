// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Core/Devices/IOSDeviceManager.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"
#include "UI/Devices/BackupListModel.h"
#include "UI/Devices/DeviceListModel.h"
#include "UI/Devices/DeviceWork.h"
#include "UI/IOSMediaViewModel.h"
#include "UI/ModuleViewModel.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <memory>
#include <optional>
#include <vector>

namespace Korvane {

/// Finds the devices on the cable and the backups on this computer, and moves backups to the Trash.
///
/// Main thread. Its end cancels a detection and a search for backups; a removal that has begun is always finished.
class IOSDeviceViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application, one for each screen")
    Q_PROPERTY(Korvane::ModuleViewModel* module READ module CONSTANT)
    Q_PROPERTY(DeviceState deviceState READ deviceState NOTIFY deviceResultChanged)
    Q_PROPERTY(Korvane::DeviceListModel* deviceRows READ deviceRows CONSTANT)
    Q_PROPERTY(QString toolsHint READ toolsHint NOTIFY deviceResultChanged)
    Q_PROPERTY(bool detecting READ isDetecting NOTIFY detectingChanged)
    /// The camera roll of the first device; null without one. A fresh one for each device.
    Q_PROPERTY(Korvane::IOSMediaViewModel* media READ media NOTIFY mediaChanged)
    Q_PROPERTY(Korvane::BackupListModel* backupRows READ backupRows CONSTANT)
    Q_PROPERTY(bool scanningBackups READ isScanningBackups NOTIFY backupsChanged)
    /// Whether the user is asked if a backup is to be removed.
    Q_PROPERTY(bool asking READ isAsking NOTIFY backupToDeleteChanged)
    Q_PROPERTY(QString question READ question NOTIFY backupToDeleteChanged)

public:
    using DetectionResult = IOSDeviceManager::DetectionResult;

    /// What the last detection has found; Unknown until the first has ended.
    enum class DeviceState { Unknown, Devices, ToolsMissing, NoDevice };
    Q_ENUM(DeviceState)

    IOSDeviceViewModel(Host host, std::shared_ptr<DeviceWork> work, QObject* parent = nullptr);
    ~IOSDeviceViewModel() override;

    ModuleViewModel* module() { return &m_module; }
    const std::optional<DetectionResult>& deviceResult() const { return m_deviceResult; }
    DeviceState deviceState() const;
    DeviceListModel* deviceRows() { return &m_devices; }
    QString toolsHint() const;
    bool isDetecting() const { return m_detecting; }
    IOSMediaViewModel* media() const { return m_media; }
    const std::vector<IOSBackup>& backups() const { return m_backups.backups(); }
    BackupListModel* backupRows() { return &m_backups; }
    bool isScanningBackups() const { return m_scanningBackups; }
    /// The backup that the user is asked about; as it was found, whatever has been found since.
    const std::optional<IOSBackup>& backupToDelete() const { return m_backupToDelete; }
    bool isAsking() const { return m_backupToDelete.has_value(); }
    /// What the user is asked, or was asked last.
    const QString& question() const { return m_question; }

    /// The screen is shown: looks for devices and for backups, side by side.
    Q_INVOKABLE void load();
    /// Looks for devices; what was found before stays until then. A detection that is still under way is cancelled.
    Q_INVOKABLE void refreshDevices();
    /// Looks for backups and measures them; likewise.
    void scanBackups();
    /// Moves a backup to the Trash, then looks for them all again. What goes wrong is not told: the list shows what is
    /// left.
    void deleteBackup(const IOSBackup& backup);

    /// Asks about the backup with this id, if there is one.
    Q_INVOKABLE void ask(const QString& backupId);
    /// Removes the backup that is asked about, and asks no more.
    Q_INVOKABLE void deleteAsked();
    /// The question has been answered, or put away.
    Q_INVOKABLE void stopAsking();

Q_SIGNALS:
    void deviceResultChanged();
    void detectingChanged();
    void mediaChanged();
    void backupsChanged();
    void backupToDeleteChanged();

private:
    struct Detection;

    void finishDetection(Detection detection);
    void renewMedia();

    ModuleViewModel m_module;
    const Host m_host;
    std::shared_ptr<DeviceWork> m_work;
    std::optional<DetectionResult> m_deviceResult;
    DeviceListModel m_devices;
    QString m_installation; ///< What installs the tools.
    bool m_detecting = false;
    IOSMediaViewModel* m_media = nullptr; ///< A child of this.
    BackupListModel m_backups;
    bool m_scanningBackups = false;
    std::optional<IOSBackup> m_backupToDelete;
    QString m_question;
    Cancellation m_detection; ///< Of the detection that is under way.
    Cancellation m_scan; ///< Of the search for backups that is under way.
    quint64 m_detectionGeneration = 0; ///< What any other brings is stale.
    quint64 m_scanGeneration = 0; ///< The same of the search.
};

} // namespace Korvane
