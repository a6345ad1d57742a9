// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/UninstallerViewModel.h"

#include "Core/Uninstalling/AppInventoryScanner.h"
#include "Platform/DisplayText.h"
#include "UI/Background.h"
#include "UI/ThrottledProgress.h"

#include <utility>

namespace Korvane {

namespace {

std::vector<InstalledApp> scanApps(const Host& host, const ProgressHandler& progress, const Cancellation& cancellation)
{
    return AppInventoryScanner().scanApps(host, progress, cancellation);
}

} // namespace

UninstallerViewModel::UninstallerViewModel(
    Host host, std::shared_ptr<ApplicationIcons> icons, AppInventory::Scan inventory, QObject* parent)
    : QObject(parent)
    , m_module(CleanerModule::uninstaller)
    , m_host(std::move(host))
    , m_inventory(inventory ? std::move(inventory) : scanApps)
    , m_icons(std::move(icons))
    , m_running(m_host.workspace)
{
    connect(&m_running, &RunningWatch::changed, this, &UninstallerViewModel::runningChanged);
    connect(this, &UninstallerViewModel::selectedAppChanged, this, &UninstallerViewModel::runningChanged);
}

UninstallerViewModel::~UninstallerViewModel() { m_scanTask.cancel(); }

void UninstallerViewModel::scan()
{
    if (m_isRemoving)
        return;
    m_scanTask.cancel();
    m_scanTask = Cancellation();
    const quint64 generation = ++m_generation;
    setProgress({});
    setPhase(Phase::Scanning);
    auto progress = throttledProgress(this, [generation](UninstallerViewModel& self, const ScanProgress& report) {
        if (self.m_generation == generation)
            self.setProgress(report);
    });
    runInBackground(
        this,
        [scan = m_inventory, host = m_host, progress = std::move(progress), cancellation = m_scanTask] {
            return AppInventory::of(scan, host, progress, cancellation);
        },
        [this, generation](std::optional<AppInventory> inventory) {
            if (generation == m_generation)
                finishScan(std::move(inventory));
        });
}

void UninstallerViewModel::finishScan(std::optional<AppInventory> inventory)
{
    if (inventory) {
        m_running.setRunning(std::move(inventory->running));
        m_hasLoaded = true;
        setApps(std::move(inventory->apps));
    }
    setPhase(m_hasLoaded ? Phase::Loaded : Phase::Idle);
}

void UninstallerViewModel::cancel()
{
    if (!isCancellable())
        return;
    m_scanTask.cancel();
    ++m_generation;
    setPhase(m_hasLoaded ? Phase::Loaded : Phase::Idle);
}

void UninstallerViewModel::uninstallSelected()
{
    if (const InstalledApp* app = selectedApp())
        uninstall(InstalledApp(*app));
}

void UninstallerViewModel::uninstall(const InstalledApp& app)
{
    if (m_phase != Phase::Loaded || isRunning(app))
        return;
    m_isRemoving = true;
    ++m_generation;
    setProgress({ displayText(app.url), 0, 0 });
    setPhase(Phase::Scanning);
    // Not bound to this screen: what was begun is finished even when the user has gone elsewhere meanwhile.
    runInBackground(
        QCoreApplication::instance(), [app, host = m_host] { return AppRemovalOutcome::of(app, host); },
        [screen = QPointer<UninstallerViewModel>(this), app](AppRemovalOutcome outcome) {
            if (screen)
                screen->finishRemoval(app, std::move(outcome));
        });
}

void UninstallerViewModel::finishRemoval(const InstalledApp& app, AppRemovalOutcome outcome)
{
    m_isRemoving = false;
    m_running.setRunning(std::move(*outcome.running));
    if (!outcome.result) {
        setPhase(Phase::Loaded);
        return;
    }
    setApps(outcome.whatRemains(apps(), app));
    setSelectedAppID(std::nullopt);
    scan();
}

void UninstallerViewModel::selectRow(int row)
{
    if (const auto id = m_rows.idInRow(row))
        setSelectedAppID(id);
}

void UninstallerViewModel::setSelectedAppID(std::optional<Uuid> id)
{
    if (m_rows.selectedAppID() == id)
        return;
    m_rows.setSelectedAppID(id);
    showSelected();
}

void UninstallerViewModel::setSearchText(const QString& text)
{
    if (searchText() == text)
        return;
    m_rows.setSearchText(text);
    Q_EMIT searchTextChanged();
}

void UninstallerViewModel::setApps(std::vector<InstalledApp> apps)
{
    m_icons->setApps(apps);
    m_rows.setApps(std::move(apps));
    showSelected();
}

void UninstallerViewModel::showSelected()
{
    const InstalledApp* app = selectedApp();
    m_leftovers.setLeftovers(app ? app->leftovers : std::vector<ScanItem>());
    Q_EMIT selectedAppChanged();
    watch();
}

InstalledAppTexts UninstallerViewModel::selectedTexts() const
{
    const InstalledApp* app = selectedApp();
    return app ? InstalledAppTexts::of(*app) : InstalledAppTexts();
}

void UninstallerViewModel::setSeen(bool seen)
{
    if (m_isSeen == seen)
        return;
    m_isSeen = seen;
    watch();
    Q_EMIT seenChanged();
}

void UninstallerViewModel::watch() { m_running.setWatched(m_isSeen && m_phase == Phase::Loaded && hasSelection()); }

void UninstallerViewModel::setPhase(Phase phase)
{
    m_phase = phase;
    watch();
    Q_EMIT phaseChanged();
}

void UninstallerViewModel::setProgress(ScanProgress progress)
{
    m_progress = std::move(progress);
    Q_EMIT progressChanged();
}

} // namespace Korvane
