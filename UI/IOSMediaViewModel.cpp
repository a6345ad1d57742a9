// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/IOSMediaViewModel.h"

#include "Platform/EnsureFolder.h"
#include "Platform/FileError.h"
#include "Platform/Localized.h"
#include "UI/Background.h"
#include "UI/Devices/DeviceTexts.h"
#include "UI/FilledText.h"
#include "UI/ThrottledProgress.h"

#include <exception>
#include <utility>

namespace Korvane {

namespace {

/// What a listing brought: what there is, or what went wrong.
struct Listed {
    std::shared_ptr<const MediaListing> listing;
    QString failure;
};

/// How an export ended.
struct Exported {
    std::size_t succeeded = 0;
    std::size_t failed = 0;
};

Listed listMedia(
    const Host& host, const std::string& udid, const MediaProgress& progress, const Cancellation& cancellation)
{
    try {
        return { std::make_shared<const MediaListing>(IOSMediaManager(host).listMedia(udid, progress, cancellation)),
            {} };
    } catch (const std::exception& error) {
        return { nullptr, DeviceTexts::message(QString::fromUtf8(error.what())) };
    }
}

Exported exportFiles(const Host& host, const std::string& udid, const std::vector<IOSMediaFile>& files,
    const MediaListing& listing, const Cancellation& cancellation)
{
    const IOSMediaManager manager(host);
    const std::filesystem::path downloads = host.environment.downloads();
    try {
        ensureFolder(downloads);
    } catch (const FileError&) {
        // Each file fails for want of it.
    }
    Exported exported;
    for (const IOSMediaFile& file : files) {
        if (cancellation.isCancelled())
            break;
        try {
            manager.exportFile(file, udid, downloads, listing.folders(), cancellation);
            ++exported.succeeded;
        } catch (const std::exception&) {
            ++exported.failed;
        }
    }
    return exported;
}

} // namespace

IOSMediaViewModel::IOSMediaViewModel(
    const IOSDevice& device, Host host, std::shared_ptr<DeviceWork> work, QObject* parent)
    : QObject(parent)
    , m_udid(device.udid)
    , m_host(std::move(host))
    , m_work(std::move(work))
    , m_deviceName(device.name)
{
    connect(&m_rows, &MediaTreeModel::selectionChanged, this, &IOSMediaViewModel::selectionChanged);
    connect(&m_rows, &MediaTreeModel::selectionChanged, this, &IOSMediaViewModel::readyChanged);
    connect(&m_rows, &MediaTreeModel::modelAboutToBeReset, this, &IOSMediaViewModel::listingChanging);
    connect(&m_rows, &MediaTreeModel::listingReplaced, this, &IOSMediaViewModel::listingChanged);
    connect(m_work.get(), &DeviceWork::mediaDeleted, this, &IOSMediaViewModel::finishDeletion);
    // One that a screen before this had begun.
    if (const auto deletion = m_work->deletionOn(m_udid))
        awaitDeletion(deletion->id, deletion->asked);
}

IOSMediaViewModel::~IOSMediaViewModel()
{
    m_listing.cancel();
    m_export.cancel();
}

QString IOSMediaViewModel::progressText() const
{
    if (m_foldersFound == 0)
        return {};
    return tr("%1 of %n folders", nullptr, pluralCount(m_foldersFound)).arg(m_foldersListed);
}

QString IOSMediaViewModel::title() const
{
    return filledIn(tr("Photos & Videos on %1"), DeviceTexts::name(m_deviceName));
}

QString IOSMediaViewModel::selectionText() const
{
    return tr("%n files selected", nullptr, pluralCount(m_rows.selection().count()));
}

void IOSMediaViewModel::setDeviceName(const std::string& name)
{
    m_deviceName = name;
    Q_EMIT deviceNameChanged();
}

void IOSMediaViewModel::load()
{
    m_listing.cancel();
    m_listing = Cancellation();
    const quint64 generation = ++m_generation;
    m_hidden = false;
    m_foldersListed = m_foldersFound = 0;
    Q_EMIT progressChanged();
    setPhase(Phase::Loading);
    runInBackground(
        m_work->threads(), this,
        [host = m_host, udid = m_udid, progress = makeProgressHandler(), cancellation = m_listing] {
            return listMedia(host, udid, progress, cancellation);
        },
        [this, generation](Listed listed) {
            if (generation != m_generation)
                return;
            const bool loaded = listed.listing != nullptr;
            if (loaded)
                m_rows.setListing(std::move(listed.listing));
            setPhase(loaded ? Phase::Loaded : Phase::Failed, listed.failure);
        });
}

void IOSMediaViewModel::hide()
{
    m_hidden = true;
    m_listing.cancel();
    ++m_generation;
}

MediaProgress IOSMediaViewModel::makeProgressHandler()
{
    return throttledProgress(
        this, [generation = m_generation](IOSMediaViewModel& self, std::size_t done, std::size_t folders) {
            if (self.m_generation != generation)
                return;
            self.m_foldersListed = done;
            self.m_foldersFound = folders;
            Q_EMIT self.progressChanged();
        });
}

void IOSMediaViewModel::exportSelected()
{
    if (!isReady())
        return;
    auto listing = m_rows.listing();
    std::vector<IOSMediaFile> files = m_rows.selection().files(*listing);
    setWorking(true, tr("Exporting %n files to Downloads…", nullptr, pluralCount(files.size())));
    m_export = Cancellation();
    runInBackground(
        m_work->threads(), this,
        [host = m_host, udid = m_udid, files = std::move(files), listing = m_rows.listing(), cancellation = m_export] {
            return exportFiles(host, udid, files, *listing, cancellation);
        },
        [this](const Exported& exported) { finishExport(exported.succeeded, exported.failed); });
}

void IOSMediaViewModel::finishExport(std::size_t succeeded, std::size_t failed)
{
    setWorking(false,
        failed == 0 ? tr("Exported %n files to Downloads.", nullptr, pluralCount(succeeded))
                    : tr("Exported %n files, %1 failed.", nullptr, pluralCount(succeeded)).arg(failed));
}

QString IOSMediaViewModel::deletionQuestion() const
{
    return filledIn(tr("Delete %n files from %1?", nullptr, pluralCount(m_rows.selection().count())),
        DeviceTexts::name(m_deviceName));
}

void IOSMediaViewModel::deleteSelected()
{
    if (!isReady())
        return;
    const std::vector<IOSMediaFile> files = m_rows.selection().files(*m_rows.listing());
    awaitDeletion(m_work->deleteMedia(files, m_udid, m_rows.listing(), m_host), files.size());
}

void IOSMediaViewModel::awaitDeletion(quint64 deletion, std::size_t asked)
{
    m_deletion = deletion;
    setWorking(true, tr("Deleting %n files…", nullptr, pluralCount(asked)));
}

void IOSMediaViewModel::finishDeletion(const MediaDeletion& deletion)
{
    if (deletion.udid != m_udid)
        return;
    if (deletion.id == m_deletion && !deletion.error.isEmpty()) {
        setWorking(false, DeviceTexts::message(deletion.error));
    } else if (deletion.id == m_deletion) {
        const std::size_t deleted = deletion.asked - deletion.remaining;
        setWorking(false,
            deletion.remaining == 0
                ? tr("Deleted %n files.", nullptr, pluralCount(deleted))
                : tr("Deleted %n files, %1 failed.", nullptr, pluralCount(deleted)).arg(deletion.remaining));
    }
    // Whatever has one of these names from now on is another file, which nobody has ticked.
    m_rows.untick(deletion.gone);
    // One that another screen of this device had begun changes what there is as well.
    if (!m_hidden)
        load();
}

void IOSMediaViewModel::setPhase(Phase phase, const QString& failure)
{
    m_phase = phase;
    m_failure = failure;
    Q_EMIT phaseChanged();
}

void IOSMediaViewModel::setWorking(bool working, const QString& statusMessage)
{
    m_working = working;
    m_statusMessage = statusMessage;
    Q_EMIT statusMessageChanged();
    Q_EMIT readyChanged();
}

} // namespace Korvane
