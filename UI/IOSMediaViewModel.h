// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSDevice.h"
#include "Core/Devices/IOSMediaManager.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"
#include "UI/Devices/DeviceWork.h"
#include "UI/Devices/MediaTreeModel.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// The camera roll of one device: its folders and files, which of them are ticked, and what is done with those.
///
/// Main thread. Belongs to one device for life, so that nothing that was ticked there is ever done to another. Its end
/// cancels a listing and an export; a deletion that has begun goes on.
class IOSMediaViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a device view model")
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    /// Why the last listing failed, to be shown; empty otherwise.
    Q_PROPERTY(QString failure READ failure NOTIFY phaseChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY phaseChanged)
    /// How far the listing is; empty before the first folder.
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(QString title READ title NOTIFY deviceNameChanged)
    Q_PROPERTY(Korvane::MediaTreeModel* rows READ rows CONSTANT)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY selectionChanged)
    /// Whether the ticked files can be exported and deleted now.
    Q_PROPERTY(bool ready READ isReady NOTIFY readyChanged)
    Q_PROPERTY(bool working READ isWorking NOTIFY readyChanged)
    Q_PROPERTY(QString statusMessage READ shownStatusMessage NOTIFY statusMessageChanged)

public:
    enum class Phase { Loading, Loaded, Failed };
    Q_ENUM(Phase)

    /// What waits for tools runs on `work`.
    IOSMediaViewModel(const IOSDevice& device, Host host, std::shared_ptr<DeviceWork> work, QObject* parent = nullptr);
    ~IOSMediaViewModel() override;

    const std::string& udid() const { return m_udid; }
    Phase phase() const { return m_phase; }
    QString failure() const { return m_failure; }
    const std::vector<IOSMediaFolder>& folders() const { return m_rows.listing()->folders(); }
    bool isEmpty() const { return folders().empty(); }
    QString progressText() const;
    QString title() const;
    MediaTreeModel* rows() { return &m_rows; }
    QString selectionText() const;
    bool isReady() const { return !m_working && m_rows.selection().count() > 0; }
    bool isWorking() const { return m_working; }
    const std::optional<QString>& statusMessage() const { return m_statusMessage; }
    QString shownStatusMessage() const { return m_statusMessage.value_or(QString()); }

    /// The device is the same, its name may not be.
    void setDeviceName(const std::string& name);
    /// Lists the camera roll afresh; a listing that is still under way is never heard of again.
    Q_INVOKABLE void load();
    /// Nobody looks at it any more: cancels a listing that is under way, and none begins by itself until `load`.
    Q_INVOKABLE void hide();
    /// Copies the ticked files into the folder of downloads, which is made when it is missing, one after the other.
    /// Nothing unless `ready`.
    Q_INVOKABLE void exportSelected();
    /// What the user is asked before the ticked files are deleted.
    Q_INVOKABLE QString deletionQuestion() const;
    /// Deletes the ticked files from the device for good, and lists what is left. Nothing unless `ready`.
    Q_INVOKABLE void deleteSelected();

Q_SIGNALS:
    void phaseChanged();
    void progressChanged();
    /// The rows are about to show another listing, and do then, while they still tell which row was where.
    void listingChanging();
    void listingChanged();
    void deviceNameChanged();
    void selectionChanged();
    void readyChanged();
    void statusMessageChanged();

private:
    MediaProgress makeProgressHandler();
    void finishExport(std::size_t succeeded, std::size_t failed);
    void awaitDeletion(quint64 deletion, std::size_t asked);
    void finishDeletion(const MediaDeletion& deletion);
    void setPhase(Phase phase, const QString& failure = {});
    void setWorking(bool working, const QString& statusMessage);

    const std::string m_udid;
    const Host m_host;
    std::shared_ptr<DeviceWork> m_work;
    std::string m_deviceName;
    MediaTreeModel m_rows;
    Phase m_phase = Phase::Loading;
    QString m_failure;
    std::size_t m_foldersListed = 0;
    std::size_t m_foldersFound = 0;
    bool m_working = false;
    bool m_hidden = false;
    std::optional<QString> m_statusMessage;
    quint64 m_deletion = 0; ///< The one that this has begun last.
    Cancellation m_listing; ///< Of the listing that is under way.
    Cancellation m_export;
    quint64 m_generation = 0; ///< Of that listing; what any other brings is stale.
};

} // namespace Korvane
