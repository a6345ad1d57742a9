// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/RunningWatch.h"

#include "UI/Background.h"

#include <chrono>
#include <utility>

namespace Korvane {

RunningWatch::RunningWatch(std::shared_ptr<Workspace> workspace, QObject* parent)
    : QObject(parent)
    , m_workspace(std::move(workspace))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(std::chrono::milliseconds(1500));
    connect(&m_pause, &QTimer::timeout, this, &RunningWatch::ask);
}

void RunningWatch::setRunning(RunningApps running)
{
    if (m_running == running)
        return;
    m_running = std::move(running);
    Q_EMIT changed();
}

void RunningWatch::setWatched(bool watched)
{
    if (m_isWatched == watched)
        return;
    m_isWatched = watched;
    m_pause.stop();
    if (watched)
        ask();
}

void RunningWatch::ask()
{
    if (m_isAsking)
        return;
    m_isAsking = true;
    runInBackground(
        this, [workspace = m_workspace] { return std::make_optional<RunningApps>(*workspace); },
        [this](std::optional<RunningApps> running) {
            m_isAsking = false;
            if (running) // Always; the compiler cannot see it, and a future wants values that may be empty.
                setRunning(std::move(*running));
            if (m_isWatched)
                m_pause.start();
        });
}

} // namespace Korvane
