// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ApplicationCatalog.h"

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Korvane {

/// Applications of a test's own besides bundles, and a tool that writes down what it was asked to remove. Any thread;
/// what it tells is set before it is asked.
class TestCatalog final : public ApplicationCatalog {
public:
    std::filesystem::path ownBundle; ///< The bundle that the program is said to run from.
    std::vector<HostApplication> applications;
    std::function<void(const HostApplication&)> onUninstall; ///< May throw in place of removing.

    std::vector<std::string> uninstalled() const
    {
        const std::lock_guard lock(m_mutex);
        return m_uninstalled;
    }

    std::filesystem::path mainBundle() const override { return ownBundle; }
    std::vector<HostApplication> additionalApplications(const Cancellation& cancellation) const override
    {
        cancellation.throwIfCancelled();
        return applications;
    }
    void uninstall(const HostApplication& application, const Cancellation&) const override
    {
        if (onUninstall)
            onUninstall(application);
        const std::lock_guard lock(m_mutex);
        m_uninstalled.push_back(application.identifier);
    }

private:
    mutable std::mutex m_mutex;
    mutable std::vector<std::string> m_uninstalled;
};

} // namespace Korvane
