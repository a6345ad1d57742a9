// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/JsonWriter.h"

#include <utility>

namespace Korvane {

void JsonWriter::beginObject() { begin('{'); }
void JsonWriter::endObject() { end('}'); }
void JsonWriter::beginArray() { begin('['); }
void JsonWriter::endArray() { end(']'); }

void JsonWriter::key(std::string_view name)
{
    separate();
    quote(name);
    m_text += ':';
    m_needsComma = false;
}

void JsonWriter::string(std::string_view text)
{
    separate();
    quote(text);
}

void JsonWriter::number(std::int64_t value)
{
    separate();
    m_text += std::to_string(value);
}

void JsonWriter::boolean(bool value)
{
    separate();
    m_text += value ? "true" : "false";
}

void JsonWriter::null()
{
    separate();
    m_text += "null";
}

std::string JsonWriter::take()
{
    m_text += '\n';
    m_needsComma = false;
    return std::exchange(m_text, {});
}

void JsonWriter::begin(char bracket)
{
    separate();
    m_text += bracket;
    m_needsComma = false;
}

void JsonWriter::end(char bracket)
{
    m_text += bracket;
    m_needsComma = true;
}

void JsonWriter::separate()
{
    if (m_needsComma)
        m_text += ',';
    m_needsComma = true;
}

void JsonWriter::quote(std::string_view text)
{
    static constexpr char digits[] = "0123456789abcdef";
    m_text += '"';
    for (const char byte : text) {
        const auto value = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            m_text += '\\';
            m_text += byte;
        } else if (value < 0x20U || value == 0x7FU) {
            m_text += "\\u00";
            m_text += digits[value >> 4U];
            m_text += digits[value & 0x0FU];
        } else {
            m_text += byte;
        }
    }
    m_text += '"';
}

} // namespace Korvane
