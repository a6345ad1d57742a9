// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Base64.h"
#include "CLI/CommandLine.h"
#include "CLI/JsonWriter.h"
#include "CLI/Reports.h"

#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

namespace Korvane {

namespace {

void writePath(JsonWriter& json, const std::filesystem::path& path)
{
    const std::string_view bytes = path.native();
    const bool isText = isValidUtf8(bytes);
    json.key("path");
    json.string(isText ? std::string(bytes) : displayText(bytes));
    if (isText)
        return;
    json.key("pathBase64");
    json.string(base64(bytes));
}

/// The members of an item, without the braces around them.
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

void writeModule(JsonWriter& json, CleanerModule module)
{
    json.key("module");
    json.string(rawValue(module));
}

void writeTotal(JsonWriter& json, std::int64_t total)
{
    json.key("totalBytes");
    json.number(total);
}

} // namespace

std::string findingsAsJson(CleanerModule module, const std::vector<ScanItem>& items)
{
    JsonWriter json;
    json.beginObject();
    writeModule(json, module);
    json.key("items");
    json.beginArray();
    std::int64_t total = 0;
    for (const auto& item : items) {
        json.beginObject();
        writeMembers(json, item);
        json.endObject();
        total = checkedAdd(total, item.sizeInBytes);
    }
    json.endArray();
    writeTotal(json, total);
    json.endObject();
    return json.take();
}

std::string planAsJson(const CleaningPlan& plan)
{
    JsonWriter json;
    json.beginObject();
    writeModule(json, plan.module);
    json.key("dryRun");
    json.boolean(true);
    json.key("items");
    json.beginArray();
    std::int64_t total = 0;
    for (const auto& step : plan.steps) {
        json.beginObject();
        writeMembers(json, step.item);
        json.key("action");
        json.string(nameOf(step.action));
        json.endObject();
        total = checkedAdd(total, step.item.sizeInBytes);
    }
    json.endArray();
    writeTotal(json, total);
    json.endObject();
    return json.take();
}

std::string resultAsJson(const Cleaner::Result& result)
{
    JsonWriter json;
    json.beginObject();
    json.key("cleanedBytes");
    json.number(result.cleanedBytes);
    json.key("cleanedCount");
    json.number(result.cleanedCount);
    json.key("failures");
    json.beginArray();
    for (const auto& failure : result.failures) {
        json.beginObject();
        writePath(json, failure.url);
        json.key("message");
        json.string(isValidUtf8(failure.message) ? failure.message : displayText(std::string_view(failure.message)));
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return json.take();
}

std::string modulesAsJson()
{
    JsonWriter json;
    json.beginObject();
    json.key("modules");
    json.beginArray();
    for (const auto module : allCleanerModules) {
        json.beginObject();
        writeModule(json, module);
        json.key("title");
        json.string(title(module));
        json.key("subtitle");
        json.string(subtitle(module));
        json.key("scannable");
        json.boolean(isScannable(module));
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return json.take();
}

} // namespace Korvane
