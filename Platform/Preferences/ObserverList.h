// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/UserDefaults.h"

#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane {

/// Those who want to hear of changed preferences. One thread; an observer may end any observation while it is called.
class ObserverList {
public:
    using Changed = std::function<void(std::string_view key)>;

    /// Adds an observer for as long as the result lives; the result may outlive the list.
    std::unique_ptr<UserDefaults::Observation> add(Changed changed)
    {
        auto shared = std::make_shared<const Changed>(std::move(changed));
        m_observers.push_back(shared);
        return std::make_unique<Membership>(std::move(shared));
    }

    /// Calls everyone who observes now.
    void notify(std::string_view key)
    {
        std::erase_if(m_observers, [](const auto& observer) { return observer.expired(); });
        const auto observers = m_observers;
        for (const auto& observer : observers)
            if (const auto changed = observer.lock())
                (*changed)(key);
    }

private:
    class Membership final : public UserDefaults::Observation {
    public:
        explicit Membership(std::shared_ptr<const Changed> changed)
            : m_changed(std::move(changed))
        {
        }

    private:
        std::shared_ptr<const Changed> m_changed;
    };

    std::vector<std::weak_ptr<const Changed>> m_observers;
};

} // namespace Korvane
