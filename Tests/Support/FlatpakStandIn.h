// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// A program that behaves as the Flatpak tool does, for applications that a test says are installed.
class FlatpakStandIn {
public:
    /// Puts the program into `programFolder`, for the installation of the user of `environment`.
    FlatpakStandIn(const std::filesystem::path& programFolder, const Environment& environment);

    /// Installs an application of so many bytes; the folder that it lies in.
    std::filesystem::path install(
        const std::string& identifier, const std::string& name, std::size_t bytes = 5000) const;

    /// Replaces the program by another script for the plain shell.
    void replaceBy(const std::string& script) const;

    /// Every command line that it was called with, each in a line of its own.
    std::string calls() const;

private:
    std::filesystem::path m_program;
    std::filesystem::path m_state; ///< What it lists, and what it was called with.
    std::filesystem::path m_applications;
};

} // namespace Korvane
