// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// The program that a unit's text starts first (systemd.service(5), ExecStart), without the marks before it; nothing
/// when it starts none.
std::optional<std::string> programOfUnit(std::string_view text);

/// The units that a user has put into their own folders, and which of them are enabled: by the links that systemd makes
/// for that, without asking it, so that they are told also where it does not run.
class UserUnits {
public:
    /// The first of the folders counts most. Throws CancellationError, as do the others.
    UserUnits(std::vector<std::filesystem::path> folders, const Cancellation& cancellation);

    /// The files of the enabled units, each name once, sorted by name in each folder. None that is masked.
    std::vector<std::filesystem::path> enabled() const;

    /// By which names this unit is enabled: its own, or those of the instances of a template.
    std::vector<std::string> runningNames(const std::filesystem::path& unit) const;

private:
    void readLinks(const std::filesystem::path& folder);
    void addEnabled(const std::string& name);

    std::vector<std::filesystem::path> m_folders;
    Cancellation m_cancellation;
    std::set<std::string> m_enabledNames;
    std::set<std::string> m_enabledTemplates; ///< Those of which an instance is enabled.
};

} // namespace Korvane
