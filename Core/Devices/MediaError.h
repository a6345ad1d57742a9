// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>
#include <string>

namespace Korvane {

/// Why the camera roll of a device could not be worked on. `what()` is fit to be shown to a person as it stands, UTF-8.
class MediaError : public std::runtime_error {
public:
    enum class Kind { AfcFailed, ToolMissing };

    /// The tool did not do what it was asked for; `message` is the description.
    static MediaError afcFailed(const std::string& message);
    /// The tool was found in none of the folders: "afcclient not found — install libimobiledevice".
    static MediaError toolMissing();

    Kind kind() const noexcept { return m_kind; }

private:
    MediaError(Kind kind, const std::string& description);

    Kind m_kind;
};

} // namespace Korvane
