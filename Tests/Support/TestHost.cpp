// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/TestHost.h"

#include "Tests/Support/TestTrash.h"

namespace Korvane {

TestHost makeTestHost(const TemporaryFolder& folder)
{
    const auto environment = Environment::inFolder(folder.path());
    auto workspace = std::make_shared<TestWorkspace>();
    Host host{ environment, makeTestFileManager(environment), workspace, makeUserDefaults(environment),
        makeApplicationCatalog(environment, { folder / "bin" }), makeProcessRunner() };
    return { std::move(host), std::move(workspace) };
}

} // namespace Korvane
