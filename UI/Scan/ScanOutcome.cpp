// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanOutcome.h"

#include <utility>

namespace Korvane {

std::optional<ScanOutcome> ScanOutcome::of(const JunkScanner& scanner, const Host& host,
    const ProgressHandler& progress, const Cancellation& cancellation) noexcept
{
    try {
        auto items = scanner.scan(host, progress, cancellation);
        auto shared = scanner.sharedStorage(items, cancellation);
        auto findings = std::make_shared<const ScanFindings>(std::move(items), std::move(shared));
        cancellation.throwIfCancelled();
        ScanSelection selection = ScanSelection::ofDefaults(findings);
        return ScanOutcome{ std::move(findings), std::move(selection) };
    } catch (...) {
        return std::nullopt;
    }
}

} // namespace Korvane
