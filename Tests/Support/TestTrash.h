// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Platform/FileManager.h"

#include <filesystem>
#include <memory>
#include <string>

namespace Korvane {

/// The file manager of this machine in a test's own places, whose Trash is one of them too.
///
/// On Linux it is the real one. macOS has only the user's own Trash: there, what is trashed moves into ".Trash" of the
/// test's home, and everything else is the real one's.
std::shared_ptr<FileManager> makeTestFileManager(const Environment& environment);

/// Where that file manager moves what lay in the home folder, under the name it had if that is free.
std::filesystem::path testTrash(const Environment& environment);

/// Whether an item of this name lies there with all that the host needs to put it back.
bool isInTestTrash(const Environment& environment, const std::string& name);

} // namespace Korvane
