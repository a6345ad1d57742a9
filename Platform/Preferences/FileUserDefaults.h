// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/UserDefaults.h"

#include <filesystem>
#include <memory>

namespace Korvane {

/// Preferences kept in the text file at `path`. Main thread.
///
/// Changes by other processes are noticed while someone observes and an event loop of Qt runs on the main thread.
std::shared_ptr<UserDefaults> makeFileUserDefaults(const std::filesystem::path& path);

} // namespace Korvane
