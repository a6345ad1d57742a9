// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FormattedBytes.h"

#include "Platform/ByteCountFormatter.h"

namespace Korvane {

std::string formattedBytes(std::int64_t byteCount) { return ByteCountFormatter::string(byteCount); }

} // namespace Korvane
