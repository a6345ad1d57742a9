// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "App/SingleInstance.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <atomic>
#include <filesystem>
#include <thread>

namespace Korvane {

/// Another start of the application, which waits on a thread of its own.
class OtherStart {
public:
    OtherStart(const Environment& environment, const std::filesystem::path& runtime, const QByteArray& token = {})
        : m_thread([this, environment, runtime, token] {
            SingleInstance instance(environment, runtime, "display");
            QElapsedTimer timer;
            timer.start();
            const auto outcome = instance.claim(token);
            m_milliseconds = timer.elapsed();
            m_outcome = static_cast<int>(outcome);
        })
    {
    }
    ~OtherStart() { m_thread.join(); }
    OtherStart(const OtherStart&) = delete;
    OtherStart& operator=(const OtherStart&) = delete;

    bool hasEnded() const { return m_outcome >= 0; }
    SingleInstance::Outcome outcome() const { return static_cast<SingleInstance::Outcome>(m_outcome.load()); }
    qint64 milliseconds() const { return m_milliseconds; }

private:
    std::atomic<qint64> m_milliseconds = 0;
    std::atomic<int> m_outcome = -1;
    std::thread m_thread;
};

} // namespace Korvane
