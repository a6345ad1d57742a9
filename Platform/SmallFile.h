// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// The contents of a regular file that is no larger than `largest` bytes; nothing of any other, or when it cannot be
/// read, with the reason in errno (EFBIG, EINVAL for what is no regular file). Never waits for a pipe or a device.
std::optional<std::string> contentsOfSmallFile(const std::filesystem::path& path, std::size_t largest);

} // namespace Korvane
