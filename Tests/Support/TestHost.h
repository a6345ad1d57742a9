// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"
#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestWorkspace.h"

#include <memory>

namespace Korvane {

/// A host with real files, a Trash and preferences in a home of a test's own, and a desktop that the test plays.
struct TestHost {
    Host host;
    std::shared_ptr<TestWorkspace> workspace; ///< The same as in `host`.
};

/// A host whose home is "home" and whose temporary directory is "tmp" in the folder. The programs that its catalog of
/// applications runs are those that the test puts into "bin" there.
TestHost makeTestHost(const TemporaryFolder& folder);

} // namespace Korvane
