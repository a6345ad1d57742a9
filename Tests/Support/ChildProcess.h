// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <string>

namespace Korvane {

/// Runs `work` in a child process and returns its answer.
///
/// What the child throws comes back as "exception: " and its text, its death as "died of signal " and the number. The
/// test framework's checks do not count in there: let `work` return what it saw.
std::string runInChild(const std::function<std::string()>& work);

} // namespace Korvane
