// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Korvane {

/// Writes one JSON text (RFC 8259), on one line, with the members in the order in which they are given.
///
/// The caller opens and closes what nests, and gives texts as UTF-8.
class JsonWriter {
public:
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();

    /// The name of the member whose value comes next.
    void key(std::string_view name);
    void string(std::string_view text);
    void number(std::int64_t value);
    void boolean(bool value);
    void null();

    /// The text, ended by a line feed; the writer is empty afterwards.
    std::string take();

private:
    void begin(char bracket);
    void end(char bracket);
    void separate();
    void quote(std::string_view text);

    std::string m_text;
    bool m_needsComma = false;
};

} // namespace Korvane
