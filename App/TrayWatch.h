// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

namespace Korvane {

/// Notices that a system tray may have gone, for as long as it lives. Main thread.
class TrayWatch {
public:
    virtual ~TrayWatch() = default;

    /// Calls `mayHaveGone` from the event loop some seconds after something happened that takes a tray away, so that
    /// one that is only started anew is back by then. Asks for nothing in between. Null where trays never go.
    static std::unique_ptr<TrayWatch> make(std::function<void()> mayHaveGone);
};

} // namespace Korvane
