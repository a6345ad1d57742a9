// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/IOSDeviceViewModel.h"

#include "Core/Devices/IOSBackupScanner.h"
#include "Platform/DeviceToolsHint.h"
#include "UI/Background.h"
#include "UI/Devices/DeviceTexts.h"
#include "UI/FilledText.h"

#include <cstdlib>
#include <utility>

namespace Korvane {

/// What a detection brought.
struct IOSDeviceViewModel::Detection {
    DetectionResult result;
    std::string installation; ///< What installs the tools.
};

namespace {

std::optional<IOSDeviceManager::DetectionResult> detected(const Host& host, const Cancellation& cancellation)
{
    try {
        return IOSDeviceManager::detect(host, cancellation);
    } catch (const CancellationError&) {
        return std::nullopt;
    }
}

std::optional<std::vector<IOSBackup>> backupsOf(const Host& host, const Cancellation& cancellation)
{
    try {
        return IOSBackupScanner().scan(host, {}, cancellation);
    } catch (const CancellationError&) {
        return std::nullopt;
    }
}

} // namespace

IOSDeviceViewModel::IOSDeviceViewModel(Host host, std::shared_ptr<DeviceWork> work, QObject* parent)
    : QObject(parent)
    , m_module(CleanerModule::iosDevice)
    , m_host(std::move(host))
    , m_work(std::move(work))
{
    connect(m_work.get(), &DeviceWork::backupRemoved, this, &IOSDeviceViewModel::scanBackups);
}

IOSDeviceViewModel::~IOSDeviceViewModel()
{
    m_detection.cancel();
    m_scan.cancel();
}

IOSDeviceViewModel::DeviceState IOSDeviceViewModel::deviceState() const
{
    if (!m_deviceResult)
        return DeviceState::Unknown;
    switch (m_deviceResult->kind) {
    case DetectionResult::Kind::Devices:
        return DeviceState::Devices;
    case DetectionResult::Kind::ToolsMissing:
        return DeviceState::ToolsMissing;
    case DetectionResult::Kind::NoDevice:
        return DeviceState::NoDevice;
    }
    std::abort();
}

QString IOSDeviceViewModel::toolsHint() const
{
    return filledIn(tr("Install libimobiledevice to talk to iPhones and iPads:\n%1"), m_installation);
}

void IOSDeviceViewModel::load()
{
    refreshDevices();
    scanBackups();
}

void IOSDeviceViewModel::refreshDevices()
{
    m_detection.cancel();
    m_detection = Cancellation();
    const quint64 generation = ++m_detectionGeneration;
    m_detecting = true;
    Q_EMIT detectingChanged();
    runInBackground(
        m_work->threads(), this,
        [host = m_host, cancellation = m_detection]() -> std::optional<Detection> {
            auto result = detected(host, cancellation);
            if (!result)
                return std::nullopt;
            return Detection{ std::move(*result), deviceToolsInstallation(host.environment) };
        },
        [this, generation](std::optional<Detection> detection) {
            if (generation == m_detectionGeneration && detection)
                finishDetection(std::move(*detection));
        });
}

void IOSDeviceViewModel::finishDetection(Detection detection)
{
    m_installation = DeviceTexts::message(QString::fromStdString(detection.installation));
    m_devices.setDevices(detection.result.devices);
    m_deviceResult = std::move(detection.result);
    renewMedia();
    Q_EMIT deviceResultChanged();
    m_detecting = false;
    Q_EMIT detectingChanged();
}

void IOSDeviceViewModel::renewMedia()
{
    const std::vector<IOSDevice>& devices = m_deviceResult->devices;
    const bool isSame = m_media ? !devices.empty() && devices.front().udid == m_media->udid() : devices.empty();
    if (isSame) {
        if (m_media)
            m_media->setDeviceName(devices.front().name);
        return;
    }
    IOSMediaViewModel* gone = std::exchange(
        m_media, devices.empty() ? nullptr : new IOSMediaViewModel(devices.front(), m_host, m_work, this));
    Q_EMIT mediaChanged();
    // The old section, which goes once control returns to the event loop, still names it until then.
    if (gone)
        gone->deleteLater();
}

void IOSDeviceViewModel::scanBackups()
{
    m_scan.cancel();
    m_scan = Cancellation();
    const quint64 generation = ++m_scanGeneration;
    m_scanningBackups = true;
    Q_EMIT backupsChanged();
    runInBackground(
        m_work->threads(), this, [host = m_host, cancellation = m_scan] { return backupsOf(host, cancellation); },
        [this, generation](std::optional<std::vector<IOSBackup>> backups) {
            if (generation != m_scanGeneration || !backups)
                return;
            m_backups.setBackups(std::move(*backups));
            m_scanningBackups = false;
            Q_EMIT backupsChanged();
        });
}

void IOSDeviceViewModel::deleteBackup(const IOSBackup& backup) { m_work->removeBackup(backup, m_host); }

void IOSDeviceViewModel::ask(const QString& backupId)
{
    const IOSBackup* backup = m_backups.backup(backupId);
    if (!backup)
        return;
    m_question = filledIn(tr("Delete backup of %1?"), DeviceTexts::name(backup->deviceName));
    m_backupToDelete = *backup;
    Q_EMIT backupToDeleteChanged();
}

void IOSDeviceViewModel::deleteAsked()
{
    const std::optional<IOSBackup> backup = m_backupToDelete;
    stopAsking();
    if (backup)
        deleteBackup(*backup);
}

void IOSDeviceViewModel::stopAsking()
{
    m_backupToDelete.reset();
    Q_EMIT backupToDeleteChanged();
}

} // namespace Korvane
