// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace Korvane {

/// Turns the signals that ask a program to end into an ordinary quit, so that what runs is finished and saved.
///
/// One in a program. Main thread. Restores the former handling when destroyed.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    /// From now on SIGTERM, SIGINT and SIGHUP make the application quit.
    TerminationSignals();
    ~TerminationSignals() override;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Korvane
