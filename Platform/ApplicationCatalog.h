// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Environment.h"
#include "Platform/HostApplication.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace Korvane {

/// What the host knows about applications besides the bundles in the application folders.
class ApplicationCatalog {
public:
    virtual ~ApplicationCatalog() = default;

    /// The bundle that this program runs from, free of links; empty when it runs from none. Any thread.
    virtual std::filesystem::path mainBundle() const = 0;

    /// Linux: the user's own AppImages in the home folder, then the user's own Flatpaks, each kind sorted by id;
    /// nothing that belongs to the system or to its packages. macOS: none. What cannot be read is left out.
    ///
    /// Not on the main thread: it reads folders and waits for the Flatpak tool. Throws CancellationError.
    virtual std::vector<HostApplication> additionalApplications(const Cancellation& cancellation) const = 0;

    /// Has the Flatpak tool remove a Flatpak of the user for good; there is no Trash for it, and its data is left.
    ///
    /// Not on the main thread. Throws FileError on the application's path with the tool's own text when it fails, or
    /// when it is not a Flatpak of the user; CancellationError.
    virtual void uninstall(const HostApplication& application, const Cancellation& cancellation) const = 0;
};

/// The catalog of this machine for the user of `environment`; programs are looked for in `programFolders`.
std::shared_ptr<ApplicationCatalog> makeApplicationCatalog(const Environment& environment,
    const std::vector<std::filesystem::path>& programFolders = { "/usr/bin", "/usr/local/bin" });

} // namespace Korvane
