// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// Asks the file manager on the session bus (org.freedesktop.FileManager1) to show the item of a "file" address.
///
/// False when there is no session bus or no file manager on it that runs or can be started. Does not wait for the file
/// manager itself; for the bus 0.5 s at most. Main thread.
bool showInFileManagerService(const std::string& uri);

} // namespace Korvane
