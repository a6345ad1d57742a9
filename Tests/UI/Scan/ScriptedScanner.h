// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"

#include <functional>
#include <utility>

namespace Korvane {

/// A scanner that does what a test says, on the scanning thread.
class ScriptedScanner final : public JunkScanner {
public:
    using Script = std::function<std::vector<ScanItem>(const ProgressHandler&, const Cancellation&)>;

    explicit ScriptedScanner(Script script)
        : m_script(std::move(script))
    {
    }

    /// A scanner that finds exactly these items at once.
    static std::shared_ptr<const JunkScanner> finding(std::vector<ScanItem> items)
    {
        return std::make_shared<ScriptedScanner>(
            [items = std::move(items)](const ProgressHandler&, const Cancellation&) { return items; });
    }

    std::vector<ScanItem> scan(
        const Host&, const ProgressHandler& progress, const Cancellation& cancellation) const override
    {
        return m_script(progress, cancellation);
    }

private:
    Script m_script;
};

} // namespace Korvane
