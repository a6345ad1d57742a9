// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserActionScope.h"

namespace Korvane {

UserActionScope::UserActionScope() noexcept
    : m_threadPolicy(0)
{
}

UserActionScope::~UserActionScope() = default;

} // namespace Korvane
