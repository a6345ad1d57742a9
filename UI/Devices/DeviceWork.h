// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Core/Devices/IOSMediaFile.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"
#include "UI/Devices/MediaDeletion.h"
#include "UI/Devices/MediaListing.h"
#include "UI/WaitingThreads.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// What is under way with devices and backups: screens run here what waits for a tool, and what outlives them, the
/// deletions and removals that have begun.
///
/// Main thread. Its end cancels what still runs and waits until that has ended. A deletion that has begun was
/// confirmed: it is given a while to delete what it was asked for, but not to find out what is still there.
class DeviceWork : public QObject {
    Q_OBJECT

public:
    /// How long a deletion may take from the end of this on; nobody waits longer for a program to quit.
    static constexpr std::chrono::milliseconds graceOfADeletion{ 5000 };

    explicit DeviceWork(std::chrono::milliseconds grace = graceOfADeletion)
        : m_grace(grace)
    {
    }
    ~DeviceWork() override;

    QThreadPool& threads() { return m_threads.pool(); }
    /// Moves a backup to the Trash.
    void removeBackup(const IOSBackup& backup, const Host& host);
    /// Deletes files from the device for good; `listing` is the one that they were chosen from. Returns what
    /// `mediaDeleted` will name the deletion by.
    quint64 deleteMedia(const std::vector<IOSMediaFile>& files, const std::string& udid,
        std::shared_ptr<const MediaListing> listing, const Host& host);

    /// The deletion on a device that has begun and not ended; nothing when there is none.
    std::optional<MediaDeletion> deletionOn(const std::string& udid) const;

Q_SIGNALS:
    /// A removal has ended, whatever came of it.
    void backupRemoved();
    /// A deletion has ended, whatever came of it.
    void mediaDeleted(const Korvane::MediaDeletion& deletion);

private:
    WaitingThreads m_threads;
    const Cancellation m_proof; ///< Of finding out what deletions have left.
    const std::chrono::milliseconds m_grace;
    quint64 m_deletions = 0;
    std::vector<MediaDeletion> m_underWay;
};

} // namespace Korvane
