// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/ReadingScope.h"

#include <sys/resource.h>

namespace Korvane {

// See setiopolicy_np(3): with materialising off, reading a dataless folder fails with EDEADLK instead of fetching it.
ReadingScope::ReadingScope() noexcept
    : m_formerPolicy(getiopolicy_np(IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES, IOPOL_SCOPE_THREAD))
{
    setiopolicy_np(IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES, IOPOL_SCOPE_THREAD, IOPOL_MATERIALIZE_DATALESS_FILES_OFF);
}

ReadingScope::~ReadingScope()
{
    if (m_formerPolicy >= 0)
        setiopolicy_np(IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES, IOPOL_SCOPE_THREAD, m_formerPolicy);
}

} // namespace Korvane
