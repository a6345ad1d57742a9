// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyList.h"

#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// A folder that the platform shows as one thing, such as an application, with the list that describes it.
///
/// The description is the first file there is of "Contents/Info.plist", "Resources/Info.plist", "Info.plist" and
/// "WrappedBundle/Info.plist": the modern form, the old one, the flat one of other devices, and such a flat one within
/// a bundle made around it (CoreFoundation's CFBundle_Internal.h). All that is in it was written by whoever made the
/// bundle, and is given on as it stands. A value; any thread.
class Bundle {
public:
    /// The bundle in this folder, or a link to one; nothing when there is none. A folder without a description, or with
    /// one that cannot be read, is a bundle that says nothing of itself.
    static std::optional<Bundle> open(const std::filesystem::path& folder);

    /// "CFBundleIdentifier", when it is a text that is not empty. May hold anything a file name may not: "/", NUL,
    /// "..".
    std::optional<std::string> bundleIdentifier() const;

    /// The existing file that "CFBundleIconFile" names, with ".icns" added where the name has no extension; always a
    /// regular file within the bundle, where links may lead it but never out.
    std::optional<std::filesystem::path> iconFile() const;

    /// The description; null when there is none that can be read. Lives as long as this bundle.
    const PropertyList* information() const noexcept { return m_information ? &*m_information : nullptr; }

private:
    explicit Bundle(std::filesystem::path folder);
    std::optional<std::string> text(const char* key) const;

    std::filesystem::path m_folder;
    std::filesystem::path m_resources;
    std::optional<PropertyList> m_information;
};

} // namespace Korvane
