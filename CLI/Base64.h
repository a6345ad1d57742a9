// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace Korvane {

/// Bytes in Base64 with the standard alphabet and padding (RFC 4648, section 4).
std::string base64(std::string_view bytes);

} // namespace Korvane
