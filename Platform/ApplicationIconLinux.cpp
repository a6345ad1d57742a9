// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ApplicationIcon.h"

#include "Platform/Bundle.h"
#include "Platform/Icons/FlatpakIcon.h"
#include "Platform/Icons/Icns.h"
#include "Platform/Icons/IconImage.h"

#include <system_error>

namespace Korvane {

std::optional<std::string> applicationIcon(const std::filesystem::path& application, int pixels)
{
    std::error_code error;
    if (!std::filesystem::is_directory(application, error))
        return iconImage(application);
    // The id of a Flatpak may end like the name of a bundle.
    const bool isNamedAsBundle = application.extension() == ".app";
    const auto bundle = isNamedAsBundle ? Bundle::open(application) : std::nullopt;
    const auto file = bundle ? bundle->iconFile() : std::nullopt;
    return file ? imageInIcns(*file, pixels) : flatpakIcon(application, pixels);
}

} // namespace Korvane
