// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/CommandLine.h"
#include "CLI/JsonItems.h"
#include "CLI/JsonWriter.h"
#include "CLI/Reports.h"

#include "Platform/Checked.h"

namespace Korvane {

namespace {

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
        writeText(json, failure.message);
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
