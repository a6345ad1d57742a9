// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

namespace Korvane {

/// The service that the real tools ask for devices (usbmuxd), played by a thread of the test: none is connected.
class EmptyDeviceService {
public:
    /// Listens on a socket at this path; throws std::system_error.
    explicit EmptyDeviceService(const std::filesystem::path& socket);
    ~EmptyDeviceService();
    EmptyDeviceService(const EmptyDeviceService&) = delete;
    EmptyDeviceService& operator=(const EmptyDeviceService&) = delete;

    /// How many questions it was asked so far.
    int questions() const { return m_questions; }

private:
    void serve();
    void answer(int connection);

    int m_socket = -1;
    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_questions = 0;
    std::thread m_thread;
};

} // namespace Korvane
