// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/ReadingScope.h"

namespace Korvane {

ReadingScope::ReadingScope() noexcept
    : m_formerPolicy(0)
{
}

ReadingScope::~ReadingScope() = default;

} // namespace Korvane
