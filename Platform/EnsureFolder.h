// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// Makes a folder where there is none, with the permissions 0755 less what the umask of this process takes away, and
/// nothing above it. A folder that is there stays as it is, and so does a link to one.
///
/// Throws FileError when it cannot be made, because what is to hold it is missing or may not be changed, and when
/// something else lies there, which stays: a file, or a link that leads nowhere. Any thread.
void ensureFolder(const std::filesystem::path& folder);

} // namespace Korvane
