// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// The image among the icons that a deployed Flatpak gives to the desktop, of the application's own name, that is the
/// smallest of those at least `pixels` wide, else one without a size of its own, else the widest. `folder` is "app/ID"
/// in an installation; nothing outside it is read. Nothing when it holds none.
std::optional<std::string> flatpakIcon(const std::filesystem::path& folder, int pixels);

} // namespace Korvane
