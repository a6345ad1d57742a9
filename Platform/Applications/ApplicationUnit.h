// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The application whose process lies in a control group, by the unit names that desktops give to applications.
///
/// `table` is the text of a /proc/PID/cgroup file (cgroups(7)). Understood, innermost first: the application units of
/// systemd's conventions for desktop environments ("app-LAUNCHER-ID-RANDOM.scope", "app-ID@RANDOM.service", escaped as
/// in systemd.unit(5)), those of Flatpak ("app-flatpak-ID-NUMBER.scope") and of snaps ("snap.NAME.APP-UUID.scope").
std::optional<std::string> applicationOfControlGroups(std::string_view table);

} // namespace Korvane
