// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <chrono>
#include <functional>

namespace Korvane {

/// Whether `work` throws CancellationError when it is cancelled so long after its start. On a machine that is busy with
/// other tests a cancel may come when all is done, so that it is tried up to fifty times.
bool stopsWhenCancelled(const std::function<void(const Cancellation&)>& work, std::chrono::milliseconds after);

} // namespace Korvane
