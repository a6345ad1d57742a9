// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"
#include "UI/ModuleViewModel.h"
#include "UI/Uninstaller/AppInventory.h"
#include "UI/Uninstaller/AppListModel.h"
#include "UI/Uninstaller/AppRemovalOutcome.h"
#include "UI/Uninstaller/ApplicationIcons.h"
#include "UI/Uninstaller/InstalledAppTexts.h"
#include "UI/Uninstaller/LeftoversModel.h"
#include "UI/Uninstaller/RunningWatch.h"

#include <QtQmlIntegration>

namespace Korvane {

/// Lists the installed applications with what they left behind, and moves one with all of it to the Trash.
///
/// Main thread. Scans and removals run on the `backgroundThreads`. Destroying it cancels a scan and drops what is still
/// on its way; a removal that has begun is always finished, whether its screen still exists or not.
class UninstallerViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application, one for each screen")
    Q_PROPERTY(Korvane::ModuleViewModel* module READ module CONSTANT)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(bool cancellable READ isCancellable NOTIFY phaseChanged)
    Q_PROPERTY(QString currentPath READ currentPath NOTIFY progressChanged)
    Q_PROPERTY(Korvane::AppListModel* rows READ rows CONSTANT)
    Q_PROPERTY(bool hasApps READ hasApps NOTIFY phaseChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectedAppChanged)
    Q_PROPERTY(Korvane::InstalledAppTexts selected READ selectedTexts NOTIFY selectedAppChanged)
    Q_PROPERTY(Korvane::LeftoversModel* leftovers READ leftovers CONSTANT)
    Q_PROPERTY(bool selectedRunning READ isSelectedRunning NOTIFY runningChanged)
    Q_PROPERTY(bool seen READ isSeen WRITE setSeen NOTIFY seenChanged)

public:
    /// Which of its three states the screen shows.
    enum class Phase { Idle, Scanning, Loaded };
    Q_ENUM(Phase)

    /// Tells `icons` what was found. Lists with `inventory`; with none, as AppInventoryScanner does.
    UninstallerViewModel(Host host, std::shared_ptr<ApplicationIcons> icons, AppInventory::Scan inventory = {},
        QObject* parent = nullptr);
    ~UninstallerViewModel() override;
    ModuleViewModel* module() { return &m_module; }
    Phase phase() const { return m_phase; }
    /// Whether what runs in the phase Scanning can be cancelled: a scan can, a removal not.
    bool isCancellable() const { return m_phase == Phase::Scanning && !m_isRemoving; }
    const ScanProgress& progress() const { return m_progress; }
    QString currentPath() const { return QString::fromStdString(m_progress.currentPath); }
    const std::vector<InstalledApp>& apps() const { return m_rows.apps(); }
    bool hasApps() const { return !apps().empty(); }
    AppListModel* rows() { return &m_rows; }
    QString searchText() const { return m_rows.searchText(); }
    void setSearchText(const QString& text);
    std::vector<InstalledApp> filteredApps() const { return m_rows.filteredApps(); }
    std::optional<Uuid> selectedAppID() const { return m_rows.selectedAppID(); }
    void setSelectedAppID(std::optional<Uuid> id);
    /// The application of the selected id, whether the search hides it or not; null when there is none.
    const InstalledApp* selectedApp() const { return m_rows.selectedApp(); }
    bool hasSelection() const { return selectedApp() != nullptr; }
    InstalledAppTexts selectedTexts() const;
    LeftoversModel* leftovers() { return &m_leftovers; }
    bool isSelectedRunning() const { return hasSelection() && isRunning(*selectedApp()); }
    /// Whether the user can see the screen; only then is it watched what runs.
    bool isSeen() const { return m_isSeen; }
    void setSeen(bool seen);
    bool isWatching() const { return m_running.isWatched(); }

    /// Begins a scan; one that runs is cancelled and never heard of again. Not while something is removed.
    Q_INVOKABLE void scan();
    /// Gives up the running scan and goes back at once to what was found before, or to idle.
    Q_INVOKABLE void cancel();
    /// Moves one application with its leftovers to the Trash, then scans again; only while applications are shown.
    void uninstall(const InstalledApp& app);
    Q_INVOKABLE void uninstallSelected();
    Q_INVOKABLE void selectRow(int row);
    /// Whether it runs, by its exact identifier; never without one. As the last scan, removal or watch has learned.
    bool isRunning(const InstalledApp& app) const { return m_running.contains(app); }

Q_SIGNALS:
    void phaseChanged();
    void progressChanged();
    void searchTextChanged();
    void selectedAppChanged();
    void runningChanged();
    void seenChanged();

private:
    void setPhase(Phase phase);
    void setProgress(ScanProgress progress);
    void setApps(std::vector<InstalledApp> apps);
    void showSelected();
    void watch();
    void finishScan(std::optional<AppInventory> inventory);
    void finishRemoval(const InstalledApp& app, AppRemovalOutcome outcome);

    ModuleViewModel m_module;
    const Host m_host;
    const AppInventory::Scan m_inventory;
    std::shared_ptr<ApplicationIcons> m_icons;
    RunningWatch m_running;
    Phase m_phase = Phase::Idle;
    ScanProgress m_progress;
    AppListModel m_rows;
    LeftoversModel m_leftovers;
    Cancellation m_scanTask; ///< Of the running scan.
    quint64 m_generation = 0; ///< Of the run whose results are awaited; those of any other are stale.
    bool m_isRemoving = false;
    bool m_hasLoaded = false;
    bool m_isSeen = false;
};

} // namespace Korvane
