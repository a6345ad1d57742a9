// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>

namespace Korvane {

/// Opens a file for one sequential read of its first `prefixBytes`, and tells the system so; the descriptor, or -1.
///
/// A link is never followed, a pipe never waited for, and a placeholder whose content lies elsewhere never opened.
/// Sources of the systems differ; the caller closes the descriptor.
int openForDigest(const std::filesystem::path& file, std::int64_t prefixBytes);

} // namespace Korvane
