// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"

namespace Korvane {

/// Finds caches, logs, build products of developer tools, temporary files and what lies in the Trash.
///
/// What belongs to a running application or to the system itself is found and never pre-selected.
class SystemJunkScanner final : public JunkScanner {
public:
    /// One item per cache, log or build folder, and one each for the simulator caches, the temporary directory and
    /// the Trash; then those of this host's own places. Largest first; equal sizes in the order of discovery.
    std::vector<ScanItem> scan(
        const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const override;
};

} // namespace Korvane
