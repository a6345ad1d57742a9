// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ApplicationCatalog.h"
#include "Platform/Environment.h"
#include "Platform/FileManager.h"
#include "Platform/ProcessRunner.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"

#include <memory>

namespace Korvane {

/// Everything of the machine that the rules may touch, handed to them from the top of the program.
///
/// Built once in `main` for the real user, and on a temporary folder in a test. Copies share the services.
struct Host {
    Environment environment;
    std::shared_ptr<FileManager> files;
    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<ApplicationCatalog> applications;
    std::shared_ptr<ProcessRunner> processes;
};

/// The host of this machine in the places of `environment`.
Host makeHost(const Environment& environment);

} // namespace Korvane
