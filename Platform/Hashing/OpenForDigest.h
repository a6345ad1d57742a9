// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"

#include <filesystem>

namespace Korvane {

/// Opens a file that DigestFile is to read, whatever its type; no descriptor, with the reason in errno, when it cannot
/// be opened or is a placeholder.
FileDescriptor openForDigest(const std::filesystem::path& file);

} // namespace Korvane
