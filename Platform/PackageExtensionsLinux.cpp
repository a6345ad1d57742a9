// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PackageExtensions.h"

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

/// Extensions of the folders that macOS shows as one file: those of the types conforming to "com.apple.package" that
/// the system, Apple's media and office applications and Xcode declare. Lower case, sorted. Not "framework": its type
/// conforms to "com.apple.bundle" alone, and macOS shows it as the folder that it is.
constexpr std::array<std::string_view, 60> packageExtensions{
    "action",
    "aplibrary",
    "app",
    "appex",
    "band",
    "bundle",
    "caction",
    "component",
    "dext",
    "docset",
    "download",
    "dsym",
    "dvdmedia",
    "fcpbundle",
    "imovielibrary",
    "imovieproject",
    "kext",
    "key",
    "logicx",
    "mailbundle",
    "mdimporter",
    "menu",
    "migratedphotolibrary",
    "mpkg",
    "musiclibrary",
    "nib",
    "numbers",
    "osax",
    "pages",
    "photolibrary",
    "photoslibrary",
    "pkg",
    "playground",
    "playgroundbook",
    "plugin",
    "prefpane",
    "qlgenerator",
    "rtfd",
    "saver",
    "scptd",
    "slidesaver",
    "sparsebundle",
    "swiftpm",
    "systemextension",
    "theater",
    "trace",
    "tvlibrary",
    "wdgt",
    "webplugin",
    "workflow",
    "xcappdata",
    "xcarchive",
    "xcdatamodel",
    "xcdatamodeld",
    "xcmappingmodel",
    "xcodeproj",
    "xcresult",
    "xctest",
    "xcworkspace",
    "xpc",
};
static_assert(std::is_sorted(packageExtensions.begin(), packageExtensions.end()));

constexpr std::size_t longestExtension = std::max_element(packageExtensions.begin(), packageExtensions.end(),
    [](auto left, auto right) { return left.size() < right.size(); }) -> size();

char lowerCase(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

} // namespace

bool hasPackageExtension(std::string_view folderName)
{
    const auto dot = folderName.rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return false;
    const auto extension = folderName.substr(dot + 1);
    if (extension.empty() || extension.size() > longestExtension)
        return false;
    std::array<char, longestExtension> lower{};
    std::transform(extension.begin(), extension.end(), lower.begin(), lowerCase);
    return std::binary_search(
        packageExtensions.begin(), packageExtensions.end(), std::string_view(lower.data(), extension.size()));
}

} // namespace Korvane
