// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Uuid.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// One background item that the system starts by itself. A plain value; compared member by member.
struct LaunchAgent {
    /// For whom it is started, and by whom it was put there.
    enum class Domain { User, SystemAgents, SystemDaemons };
    /// What its file is, and so how it is stopped.
    enum class Kind {
        PropertyList, ///< For the system's service manager.
        Autostart, ///< A desktop entry that the session starts.
        SystemdUnit, ///< An enabled unit of the user's own manager.
    };

    Uuid id; ///< Fresh for every construction: two scans of one file give two values.
    std::filesystem::path url; ///< Absolute location of its file.
    std::string label; ///< Shown in lists, UTF-8, as the file states it; else the file's name without its extension.
    std::optional<std::string> program; ///< What it runs, as the file states it; absent when it does not.
    Domain domain = Domain::User;
    Kind kind = Kind::PropertyList;

    /// Makes an item with an identity of its own.
    LaunchAgent(std::filesystem::path url, std::string label, std::optional<std::string> program, Domain domain,
        Kind kind = Kind::PropertyList);

    /// Whether it may be removed here: only what is the user's own.
    bool removable() const;

    bool operator==(const LaunchAgent&) const = default;
};

/// The domain's raw value, which is the text shown to the user and the translation key: "User Agents".
std::string_view displayText(LaunchAgent::Domain domain);

} // namespace Korvane

/// Combines all members.
template <> struct std::hash<Korvane::LaunchAgent> {
    std::size_t operator()(const Korvane::LaunchAgent& agent) const noexcept;
};
