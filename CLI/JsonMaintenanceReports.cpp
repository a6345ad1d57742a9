// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/JsonItems.h"
#include "CLI/JsonWriter.h"
#include "CLI/MaintenanceReports.h"
#include "Core/Maintenance/MaintenanceRunner.h"

namespace Korvane {

namespace {

std::string_view nameOf(LaunchAgent::Kind kind)
{
    switch (kind) {
    case LaunchAgent::Kind::PropertyList:
        return "propertyList";
    case LaunchAgent::Kind::Autostart:
        return "autostart";
    case LaunchAgent::Kind::SystemdUnit:
        return "systemdUnit";
    }
    return {};
}

void writeAgent(JsonWriter& json, const LaunchAgent& agent)
{
    writePath(json, agent.url);
    writeMember(json, "label", agent.label);
    writeOptional(json, "program", agent.program);
    writeMember(json, "domain", displayText(agent.domain));
    writeMember(json, "kind", nameOf(agent.kind));
    json.key("removable");
    json.boolean(agent.removable());
}

} // namespace

std::string tasksAsJson(const Host& host)
{
    JsonWriter json;
    json.beginArray();
    for (const auto task : allMaintenanceTasks) {
        json.beginObject();
        writeMember(json, "task", rawValue(task));
        writeMember(json, "title", title(task));
        writeMember(json, "subtitle", subtitle(task));
        writeOptional(json, "missing", MaintenanceRunner::missingMeans(task, host));
        json.endObject();
    }
    json.endArray();
    return json.take();
}

std::string taskResultAsJson(MaintenanceTask task, const std::optional<std::string>& message)
{
    JsonWriter json;
    json.beginObject();
    writeMember(json, "task", rawValue(task));
    json.key("done");
    json.boolean(!message);
    writeOptional(json, "message", message);
    json.endObject();
    return json.take();
}

std::string agentsAsJson(const std::vector<LaunchAgent>& agents)
{
    JsonWriter json;
    json.beginArray();
    for (const auto& agent : agents) {
        json.beginObject();
        writeAgent(json, agent);
        json.endObject();
    }
    json.endArray();
    return json.take();
}

std::string removalPlanAsJson(const LaunchAgent& agent)
{
    JsonWriter json;
    json.beginObject();
    writeAgent(json, agent);
    json.key("dryRun");
    json.boolean(true);
    json.endObject();
    return json.take();
}

std::string removalResultAsJson(const LaunchAgent& agent, const std::optional<std::string>& message)
{
    JsonWriter json;
    json.beginObject();
    writePath(json, agent.url);
    writeMember(json, "label", agent.label);
    writeOptional(json, "message", message);
    json.endObject();
    return json.take();
}

} // namespace Korvane
