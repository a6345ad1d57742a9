// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>

namespace Korvane {

/// The "file" address of an absolute path (RFC 8089): every byte but letters, digits, "-", ".", "_", "~" and "/" is
/// percent-encoded, so that a path of any bytes comes back as it was.
std::string fileUri(const std::filesystem::path& path);

} // namespace Korvane
