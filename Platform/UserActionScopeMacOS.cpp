// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserActionScope.h"

#include <sys/resource.h>

namespace Korvane {

namespace {

constexpr int placeholders = IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES;

} // namespace

// See setiopolicy_np(3): what a thread asks for counts before what its process asks for.
UserActionScope::UserActionScope() noexcept
    : m_threadPolicy(getiopolicy_np(placeholders, IOPOL_SCOPE_THREAD))
{
    (void)setiopolicy_np(placeholders, IOPOL_SCOPE_THREAD, IOPOL_MATERIALIZE_DATALESS_FILES_ON);
}

UserActionScope::~UserActionScope()
{
    if (m_threadPolicy >= 0)
        (void)setiopolicy_np(placeholders, IOPOL_SCOPE_THREAD, m_threadPolicy);
}

} // namespace Korvane
