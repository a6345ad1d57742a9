// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/JsonItems.h"
#include "CLI/JsonWriter.h"
#include "CLI/MediaReports.h"

namespace Korvane {

namespace {

/// An array of objects, one for each element; `write` writes the members of one.
template <typename Elements, typename Write>
void writeArray(JsonWriter& json, std::string_view key, const Elements& elements, Write write)
{
    json.key(key);
    json.beginArray();
    for (const auto& element : elements) {
        json.beginObject();
        write(element);
        json.endObject();
    }
    json.endArray();
}

void writePaths(JsonWriter& json, std::string_view key, const std::vector<std::string>& paths)
{
    writeArray(json, key, paths, [&](const std::string& path) { writePath(json, path); });
}

} // namespace

std::string mediaAsJson(const std::vector<IOSMediaFolder>& folders)
{
    JsonWriter json;
    json.beginArray();
    for (const auto& folder : folders) {
        json.beginObject();
        writePath(json, folder.path);
        writeMember(json, "name", folder.name);
        writeArray(json, "files", folder.files, [&](const IOSMediaFile& file) {
            writePath(json, file.path);
            writeMember(json, "name", file.name);
        });
        json.endObject();
    }
    json.endArray();
    return json.take();
}

std::string exportResultAsJson(const MediaExportResult& result)
{
    JsonWriter json;
    json.beginObject();
    json.key("folder");
    json.beginObject();
    writePath(json, result.folder);
    json.endObject();
    writeArray(json, "exported", result.exported, [&](const IOSMediaFile& file) { writePath(json, file.path); });
    writeArray(json, "failures", result.failures, [&](const MediaExportResult::Failure& failure) {
        writePath(json, failure.file.path);
        writeMember(json, "message", failure.message);
    });
    json.endObject();
    return json.take();
}

std::string deletionPlanAsJson(const std::vector<std::string>& paths)
{
    JsonWriter json;
    json.beginObject();
    json.key("dryRun");
    json.boolean(true);
    writePaths(json, "items", paths);
    json.endObject();
    return json.take();
}

std::string deletionResultAsJson(const std::vector<std::string>& deleted, const std::vector<std::string>& remaining)
{
    JsonWriter json;
    json.beginObject();
    writePaths(json, "deleted", deleted);
    writePaths(json, "remaining", remaining);
    json.endObject();
    return json.take();
}

} // namespace Korvane
