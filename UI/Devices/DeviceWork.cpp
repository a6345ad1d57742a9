// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/DeviceWork.h"

#include "Core/Devices/IOSBackupRemoval.h"
#include "Core/Devices/IOSMediaManager.h"
#include "UI/Background.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

std::vector<std::string> pathsOf(const std::vector<IOSMediaFile>& files)
{
    std::vector<std::string> paths;
    paths.reserve(files.size());
    for (const IOSMediaFile& file : files)
        paths.push_back(file.path);
    return paths;
}

MediaDeletion finished(MediaDeletion deletion, const std::vector<std::string>& paths, const MediaListing& listing,
    const Host& host, const Cancellation& cancellation, const Cancellation& proof)
{
    std::unordered_set<std::string> remaining;
    try {
        const auto left = IOSMediaManager(host).remove(paths, deletion.udid, listing.folders(), cancellation, proof);
        deletion.remaining = left.size();
        remaining.insert(left.begin(), left.end());
    } catch (const std::exception& error) {
        deletion.error = QString::fromUtf8(error.what());
    }
    for (const std::string& path : paths) {
        if (remaining.count(path) == 0)
            deletion.gone.push_back(path);
    }
    return deletion;
}

} // namespace

DeviceWork::~DeviceWork()
{
    m_proof.cancel();
    if (!m_underWay.empty())
        m_threads.pool().waitForDone(static_cast<int>(m_grace.count()));
}

void DeviceWork::removeBackup(const IOSBackup& backup, const Host& host)
{
    runInBackground(
        threads(), this, [backup, host] { return Korvane::removeBackup(backup, host); },
        [this](const std::optional<std::string>&) { Q_EMIT backupRemoved(); });
}

quint64 DeviceWork::deleteMedia(const std::vector<IOSMediaFile>& files, const std::string& udid,
    std::shared_ptr<const MediaListing> listing, const Host& host)
{
    const quint64 id = ++m_deletions;
    m_underWay.push_back({ id, udid, files.size(), 0, {}, {} });
    runInBackground(
        threads(), this,
        [deletion = m_underWay.back(), paths = pathsOf(files), listing = std::move(listing), host,
            cancellation = m_threads.cancellation(),
            proof = m_proof] { return finished(deletion, paths, *listing, host, cancellation, proof); },
        [this](const MediaDeletion& deletion) {
            std::erase_if(m_underWay, [&](const MediaDeletion& other) { return other.id == deletion.id; });
            Q_EMIT mediaDeleted(deletion);
        });
    return id;
}

std::optional<MediaDeletion> DeviceWork::deletionOn(const std::string& udid) const
{
    const auto deletion = std::find_if(
        m_underWay.begin(), m_underWay.end(), [&](const MediaDeletion& other) { return other.udid == udid; });
    return deletion == m_underWay.end() ? std::nullopt : std::optional(*deletion);
}

} // namespace Korvane
