// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"
#include "UI/ModuleViewModel.h"
#include "UI/Navigation.h"
#include "UI/Scan/CleanFailuresModel.h"
#include "UI/Scan/CleanedTexts.h"
#include "UI/Scan/ScanConfirmation.h"
#include "UI/Scan/ScanItemActions.h"
#include "UI/Scan/ScanOutcome.h"
#include "UI/Scan/ScanProgressTexts.h"

#include <QObject>
#include <QtQmlIntegration>

#include <memory>

namespace Korvane {

/// Drives one generic module from scan to clean, and is what its screen shows.
///
/// Main thread. Scans and cleanings run on the `backgroundThreads`. Destroying it cancels a scan and drops what is still
/// on its way; a cleaning that has begun is always finished and recorded, whether its screen still exists or not.
class ScanViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application, one for each screen")
    Q_PROPERTY(Korvane::ModuleViewModel* module READ module CONSTANT)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(Korvane::ScanProgressTexts progress READ progressTexts NOTIFY progressChanged)
    Q_PROPERTY(Korvane::ScanResultsModel* rows READ rows CONSTANT)
    Q_PROPERTY(Korvane::ScanItemActions* actions READ actions CONSTANT)
    Q_PROPERTY(bool hasItems READ hasItems NOTIFY phaseChanged)
    Q_PROPERTY(double selectedBytes READ selectedBytes NOTIFY selectionChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
    Q_PROPERTY(bool allSelectableSelected READ allSelectableSelected NOTIFY selectionChanged)
    Q_PROPERTY(QString totalText READ totalText NOTIFY phaseChanged)
    Q_PROPERTY(Korvane::ScanConfirmation confirmation READ confirmation NOTIFY confirmationChanged)
    Q_PROPERTY(Korvane::CleanedTexts result READ cleanedTexts NOTIFY phaseChanged)
    Q_PROPERTY(Korvane::CleanFailuresModel* failures READ failures CONSTANT)

public:
    /// Where the screen is in its flow; Cleaned carries result().
    enum class Phase { Idle, Scanning, Cleaning, Results, Cleaned };
    Q_ENUM(Phase)

    /// `navigation` must live longer than the view model.
    ScanViewModel(CleanerModule module, Host host, Navigation& navigation, QObject* parent = nullptr);
    ~ScanViewModel() override;
    ModuleViewModel* module() { return &m_module; }
    Phase phase() const { return m_phase; }
    /// The last report of the running scan.
    const ScanProgress& progress() const { return m_progress; }
    /// The findings of the last completed scan, in the order of the scanner.
    const std::vector<ScanItem>& items() const { return m_rows.findings().items(); }
    const ScanSelection& selection() const { return m_rows.selection(); }
    /// The outcome of the cleaning while the phase is Cleaned.
    const Cleaner::Result& result() const { return m_failures.result(); }
    std::int64_t totalBytes() const { return m_rows.findings().totalBytes(); }
    std::int64_t selectedBytes() const { return selection().bytes(); }
    bool hasItems() const { return !items().empty(); }
    bool hasSelection() const { return selection().size() > 0; }
    bool allSelectableSelected() const { return hasItems() && selection().size() == items().size(); }
    ScanProgressTexts progressTexts() const { return ScanProgressTexts::of(m_progress); }
    CleanedTexts cleanedTexts() const { return CleanedTexts::of(result()); }
    QString totalText() const;
    ScanConfirmation confirmation() const { return ScanConfirmation::of(selectedBytes(), movesToTrash()); }
    ScanResultsModel* rows() { return &m_rows; }
    ScanItemActions* actions() { return &m_actions; }
    CleanFailuresModel* failures() { return &m_failures; }

    /// Begins a scan in any phase; one that runs is cancelled and never heard of again.
    void start(std::shared_ptr<const JunkScanner> scanner);
    /// Cleans the ticked items; does nothing unless findings are shown.
    void clean(bool moveToTrash);
    Q_INVOKABLE void appear(); ///< To be called when the screen is shown: takes up the scans asked for elsewhere.
    Q_INVOKABLE void startScan(); ///< Begins a scan with a fresh scanner of the module.
    /// Gives up the running scan, if any, and goes back to idle at once, with nothing found.
    Q_INVOKABLE void cancel();
    /// Ticks all items, those not selectable by default too; or none, if all were ticked.
    Q_INVOKABLE void toggleSelectAll();
    /// Asks for confirmation, or cleans at once if the user wishes no question.
    Q_INVOKABLE void requestClean();
    /// Cleans the ticked items the way the preference says.
    Q_INVOKABLE void cleanSelected();

Q_SIGNALS:
    void phaseChanged();
    void progressChanged();
    void selectionChanged();
    void confirmationChanged();
    /// The screen is to ask for confirmation(), and to call cleanSelected() on consent.
    void confirmationRequested();

private:
    ProgressHandler makeProgressHandler();
    void takeUpScanRequest();
    bool movesToTrash() const;
    void setPhase(Phase phase);
    void finishScan(std::optional<ScanOutcome> outcome);
    void finishClean(Cleaner::Result result);

    ModuleViewModel m_module;
    const Host m_host;
    Navigation& m_navigation;
    Phase m_phase = Phase::Idle;
    ScanProgress m_progress;
    ScanResultsModel m_rows;
    ScanItemActions m_actions;
    CleanFailuresModel m_failures;
    Cancellation m_scanTask; ///< Of the running scan.
    quint64 m_generation = 0; ///< Of the run whose results are awaited; those of any other are stale.
    std::unique_ptr<UserDefaults::Observation> m_preferences;
};

} // namespace Korvane
