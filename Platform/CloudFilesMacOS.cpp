// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/CloudFiles.h"

#include <sys/resource.h>

namespace Korvane {

// See setiopolicy_np(3): reading a dataless file or folder then fails with EDEADLK. Where the system refuses, each
// thread that scans still asks for itself.
void leaveCloudFilesInTheCloud() noexcept
{
    (void)setiopolicy_np(
        IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES, IOPOL_SCOPE_PROCESS, IOPOL_MATERIALIZE_DATALESS_FILES_OFF);
}

} // namespace Korvane
