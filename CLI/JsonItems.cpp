// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/JsonItems.h"

#include "CLI/Base64.h"
#include "Platform/DisplayText.h"

namespace Korvane {

void writePath(JsonWriter& json, const std::filesystem::path& path)
{
    const std::string_view bytes = path.native();
    json.key("path");
    writeText(json, bytes);
    if (isValidUtf8(bytes))
        return;
    json.key("pathBase64");
    json.string(base64(bytes));
}

void writeMembers(JsonWriter& json, const ScanItem& item)
{
    writePath(json, item.url);
    json.key("displayName");
    json.string(item.displayName);
    json.key("category");
    json.string(item.category);
    json.key("sizeInBytes");
    json.number(item.sizeInBytes);
    json.key("selectableByDefault");
    json.boolean(item.selectableByDefault);
}

void writeText(JsonWriter& json, std::string_view text)
{
    json.string(isValidUtf8(text) ? std::string(text) : displayText(text));
}

void writeMember(JsonWriter& json, std::string_view key, std::string_view text)
{
    json.key(key);
    writeText(json, text);
}

void writeOptional(JsonWriter& json, std::string_view key, const std::optional<std::string>& text)
{
    json.key(key);
    if (text)
        writeText(json, *text);
    else
        json.null();
}

std::string_view nameOf(Cleaner::Action action)
{
    switch (action) {
    case Cleaner::Action::MoveToTrash:
        return "moveToTrash";
    case Cleaner::Action::Delete:
        return "delete";
    case Cleaner::Action::EmptyTrash:
        return "emptyTrash";
    }
    return {};
}

} // namespace Korvane
