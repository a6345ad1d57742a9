// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ScanViewModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/Background.h"
#include "UI/FilledText.h"
#include "UI/PreferenceKeys.h"
#include "UI/ThrottledProgress.h"

#include <chrono>
#include <utility>

namespace Korvane {

namespace {

/// Both values always together, the bytes first.
void recordCleaning(UserDefaults& defaults, std::int64_t cleanedBytes)
{
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    defaults.setInteger(PreferenceKeys::lastCleanedBytes, cleanedBytes);
    defaults.setDouble(PreferenceKeys::lastCleanedDate, now.count());
}

} // namespace

ScanViewModel::ScanViewModel(CleanerModule module, Host host, Navigation& navigation, QObject* parent)
    : QObject(parent)
    , m_module(module)
    , m_host(std::move(host))
    , m_navigation(navigation)
    , m_rows(m_host.environment.home)
    , m_actions(m_rows, m_host.workspace)
{
    connect(&m_rows, &ScanResultsModel::ticksChanged, this, &ScanViewModel::selectionChanged);
    connect(&m_rows, &ScanResultsModel::ticksChanged, this, &ScanViewModel::confirmationChanged);
    m_preferences = m_host.defaults->observe([this](std::string_view key) {
        if (key == PreferenceKeys::moveToTrashInsteadOfDelete)
            Q_EMIT confirmationChanged();
    });
}

ScanViewModel::~ScanViewModel() { m_scanTask.cancel(); }

void ScanViewModel::appear()
{
    connect(
        &m_navigation, &Navigation::pendingScanChanged, this, &ScanViewModel::takeUpScanRequest, Qt::UniqueConnection);
    takeUpScanRequest();
}

void ScanViewModel::takeUpScanRequest()
{
    if (m_navigation.consumeScanRequest(m_module.module()) && m_phase == Phase::Idle)
        startScan();
}

void ScanViewModel::startScan()
{
    if (std::shared_ptr<const JunkScanner> fresh = scanner(m_module.module(), *m_host.files))
        start(std::move(fresh));
}

void ScanViewModel::start(std::shared_ptr<const JunkScanner> scanner)
{
    m_scanTask.cancel();
    m_scanTask = Cancellation();
    const quint64 generation = ++m_generation;
    m_progress = ScanProgress();
    m_rows.clear();
    Q_EMIT progressChanged();
    setPhase(Phase::Scanning);
    runInBackground(
        this,
        [scanner = std::move(scanner), host = m_host, progress = makeProgressHandler(), cancellation = m_scanTask] {
            return ScanOutcome::of(*scanner, host, progress, cancellation);
        },
        [this, generation](std::optional<ScanOutcome> outcome) {
            if (generation == m_generation)
                finishScan(std::move(outcome));
        });
}

ProgressHandler ScanViewModel::makeProgressHandler()
{
    return throttledProgress(this, [generation = m_generation](ScanViewModel& self, const ScanProgress& progress) {
        if (self.m_generation != generation)
            return;
        self.m_progress = progress;
        Q_EMIT self.progressChanged();
    });
}

void ScanViewModel::finishScan(std::optional<ScanOutcome> outcome)
{
    if (!outcome) {
        setPhase(Phase::Idle);
        return;
    }
    m_rows.setFindings(std::move(outcome->findings), std::move(outcome->selection));
    setPhase(Phase::Results);
}

void ScanViewModel::cancel()
{
    if (m_phase != Phase::Scanning)
        return;
    m_scanTask.cancel();
    ++m_generation;
    setPhase(Phase::Idle);
}

void ScanViewModel::toggleSelectAll() { m_rows.setAllTicked(!allSelectableSelected()); }

void ScanViewModel::requestClean()
{
    if (m_host.defaults->boolForKey(PreferenceKeys::confirmBeforeCleaning, true))
        Q_EMIT confirmationRequested();
    else
        cleanSelected();
}

void ScanViewModel::cleanSelected() { clean(movesToTrash()); }

void ScanViewModel::clean(bool moveToTrash)
{
    if (m_phase != Phase::Results)
        return;
    const quint64 generation = ++m_generation;
    setPhase(Phase::Cleaning);
    // Not bound to this screen: what was removed is recorded even when the user has gone elsewhere meanwhile.
    runInBackground(
        QCoreApplication::instance(),
        [selection = selection(), files = m_host.files, moveToTrash] {
            return Cleaner::clean(selection.items(), moveToTrash, *files);
        },
        [screen = QPointer<ScanViewModel>(this), defaults = m_host.defaults, generation](Cleaner::Result result) {
            recordCleaning(*defaults, result.cleanedBytes);
            if (screen && screen->m_generation == generation)
                screen->finishClean(std::move(result));
        });
}

void ScanViewModel::finishClean(Cleaner::Result result)
{
    m_failures.setResult(std::make_shared<const Cleaner::Result>(std::move(result)));
    setPhase(Phase::Cleaned);
}

void ScanViewModel::setPhase(Phase phase)
{
    m_phase = phase;
    Q_EMIT phaseChanged();
}

QString ScanViewModel::totalText() const
{
    return filledIn(tr("selected of %1 found"), QString::fromStdString(formattedBytes(totalBytes())));
}

bool ScanViewModel::movesToTrash() const
{
    return m_host.defaults->boolForKey(PreferenceKeys::moveToTrashInsteadOfDelete, true);
}

} // namespace Korvane
