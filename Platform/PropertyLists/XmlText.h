// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The text of an XML document as valid UTF-8, without byte order mark and white space in front; nothing when it is in
/// an encoding other than UTF-8 (or ASCII), UTF-16 and ISO 8859-1.
std::optional<std::string> xmlText(std::string_view bytes);

/// Whether nothing in the document could cost a reader of XML more than its length: no definitions in the document type
/// (and so no entities but XML's own), and tags of ordinary length.
///
/// What is no markup at all passes: the reader will refuse it.
bool isPlainXml(std::string_view text);

} // namespace Korvane
