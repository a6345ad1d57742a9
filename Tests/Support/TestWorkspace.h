// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Workspace.h"

#include <atomic>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Korvane {

/// A desktop of a test's own: tells what it was told to tell, and writes down what it was asked to open. Any thread.
class TestWorkspace final : public Workspace {
public:
    void setRunning(std::vector<std::string> identifiers)
    {
        const std::lock_guard lock(m_mutex);
        m_running = std::move(identifiers);
    }
    /// Whether the desktop does what it is asked from now on; it does at first.
    void setRefusing(bool refusing) { m_isRefusing = refusing; }

    std::vector<std::string> openedUrls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_opened;
    }
    std::vector<std::filesystem::path> shownPaths() const
    {
        const std::lock_guard lock(m_mutex);
        return m_shown;
    }

    std::vector<RunningApplication> runningApplications() const override
    {
        const std::lock_guard lock(m_mutex);
        std::vector<RunningApplication> applications;
        for (const auto& identifier : m_running)
            applications.push_back({ identifier });
        return applications;
    }
    bool open(const std::string& url) const override
    {
        const std::lock_guard lock(m_mutex);
        m_opened.push_back(url);
        return !m_isRefusing;
    }
    bool showInFileManager(const std::filesystem::path& path) const override
    {
        const std::lock_guard lock(m_mutex);
        m_shown.push_back(path);
        return !m_isRefusing;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_running;
    mutable std::vector<std::string> m_opened;
    mutable std::vector<std::filesystem::path> m_shown;
    std::atomic<bool> m_isRefusing = false;
};

} // namespace Korvane
