// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace Korvane {

/// One photo or video in the camera roll of a device. A plain value, identified by `path`.
///
/// Its texts are bytes as the device gives them: shown as displayText gives them, sent back exactly as they stand.
struct IOSMediaFile {
    std::string path; ///< Absolute, on the device: the folder's path, "/" and the name.
    std::string name; ///< The last component of the path, as listed.

    bool operator==(const IOSMediaFile&) const = default;
};

} // namespace Korvane

/// Of the path alone, which identifies the file.
template <> struct std::hash<Korvane::IOSMediaFile> {
    std::size_t operator()(const Korvane::IOSMediaFile& file) const noexcept
    {
        return std::hash<std::string>()(file.path);
    }
};
