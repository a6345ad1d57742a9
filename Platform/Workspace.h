// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// An application that this user has running.
struct RunningApplication {
    std::optional<std::string> bundleIdentifier; ///< The platform's application id; absent when it has none.
};

/// What the desktop offers: the applications that run, and opening things with them.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The applications of this user that run now. Any thread.
    virtual std::vector<RunningApplication> runningApplications() const = 0;

    /// Opens an address with the application registered for it; false when the desktop refused. Main thread.
    virtual bool open(const std::string& url) const = 0;

    /// Shows a file or folder, selected, in the file manager; false when there is none. Main thread.
    virtual bool showInFileManager(const std::filesystem::path& path) const = 0;
};

/// The workspace of this machine for the user of `environment`.
std::shared_ptr<Workspace> makeWorkspace(const Environment& environment);

} // namespace Korvane
