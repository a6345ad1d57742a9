// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <concepts>
#include <filesystem>
#include <string>
#include <string_view>

namespace Korvane {

/// A file name or path as text to be shown: valid UTF-8 on one line. For eyes only: never turned back into a path.
///
/// Bytes that are not UTF-8 become U+FFFD, one for each maximal part of a sequence (Unicode 15, section 3.9). Control
/// characters below U+0020 and U+007F become their pictures (U+2400 block). The later controls (U+0080 to U+009F), what
/// turns the direction of writing (U+061C, U+200E, U+200F, U+202A to U+202E, U+2066 to U+2069), what ends a line or a
/// paragraph (U+2028, U+2029) and what takes no room (U+00AD, U+200B, U+2060, U+FEFF) are named in brackets:
/// "[U+202E]". Any thread.
std::string displayText(std::string_view bytes);

/// The same for a path; a template, so that text is never taken for one.
template <std::same_as<std::filesystem::path> Path> std::string displayText(const Path& path)
{
    return displayText(std::string_view(path.native()));
}

/// Whether these bytes are well-formed UTF-8. Any thread.
bool isValidUtf8(std::string_view bytes) noexcept;

} // namespace Korvane
