// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ProgressThrottle.h"

#include <QCoreApplication>
#include <QPointer>

#include <memory>
#include <utility>

namespace Korvane {

/// A handler for any thread that hands reports to `apply(receiver, progress...)` on the main thread, at most one in 0.1
/// s.
///
/// Main thread. Holds the receiver weakly: what arrives after its end is dropped. Reports of a run that is no longer of
/// interest are for `apply` to drop.
template <typename Receiver, typename Apply> auto throttledProgress(Receiver* receiver, Apply apply)
{
    return [weak = QPointer<Receiver>(receiver), apply = std::move(apply), application = QCoreApplication::instance(),
               throttle = std::make_shared<ProgressThrottle>(ProgressThrottle::standardInterval)](
               const auto&... progress) {
        if (!throttle->shouldEmit())
            return;
        const auto arrive = [weak, apply, progress...] {
            if (weak)
                apply(*weak, progress...);
        };
        QMetaObject::invokeMethod(application, arrive, Qt::QueuedConnection);
    };
}

} // namespace Korvane
