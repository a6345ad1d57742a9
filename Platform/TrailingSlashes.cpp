// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TrailingSlashes.h"

namespace Korvane {

std::string_view withoutTrailingSlashes(std::string_view path) noexcept
{
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    return path;
}

} // namespace Korvane
