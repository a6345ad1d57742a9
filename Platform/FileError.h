// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Korvane {

/// Why one operation on one file or folder did not happen.
///
/// `what()` is the platform's localised description (UTF-8), fit to be shown to a person as it stands.
class FileError : public std::runtime_error {
public:
    /// An error of the platform; the description is the platform's own text for `code`.
    FileError(std::filesystem::path path, std::error_code code);

    /// An error whose description says more than the platform's text for `code` does.
    FileError(std::filesystem::path path, std::error_code code, const std::string& description);

    /// What could not be worked on: the item asked for, or the entry inside it that refused.
    const std::filesystem::path& path() const noexcept { return m_path; }
    std::error_code code() const noexcept { return m_code; }

    /// The platform's localised description, UTF-8.
    std::string localizedDescription() const { return what(); }

private:
    std::filesystem::path m_path;
    std::error_code m_code;
};

} // namespace Korvane
