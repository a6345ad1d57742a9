// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/AppReports.h"
#include "CLI/JsonItems.h"
#include "CLI/JsonWriter.h"
#include "Core/Uninstalling/AppRemoval.h"

namespace Korvane {

namespace {

void writeIdentity(JsonWriter& json, const InstalledApp& app)
{
    writePath(json, app.url);
    json.key("name");
    json.string(app.name);
    json.key("bundleID");
    if (app.bundleID)
        writeText(json, *app.bundleID);
    else
        json.null();
}

} // namespace

std::string appsAsJson(const std::vector<InstalledApp>& apps, const RunningApps& running)
{
    JsonWriter json;
    json.beginArray();
    for (const auto& app : apps) {
        json.beginObject();
        writeIdentity(json, app);
        json.key("sizeInBytes");
        json.number(app.sizeInBytes);
        json.key("totalSize");
        json.number(app.totalSize());
        json.key("running");
        json.boolean(running.contains(app));
        json.key("leftovers");
        json.beginArray();
        for (const auto& leftover : app.leftovers) {
            json.beginObject();
            writeMembers(json, leftover);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    return json.take();
}

std::string uninstallPlanAsJson(const InstalledApp& app)
{
    JsonWriter json;
    json.beginObject();
    writeIdentity(json, app);
    json.key("dryRun");
    json.boolean(true);
    json.key("items");
    json.beginArray();
    for (const auto& item : AppRemoval::items(app)) {
        const bool isFlatpak = app.kind == InstalledApp::Kind::Flatpak && item.url == app.url;
        json.beginObject();
        writeMembers(json, item);
        json.key("action");
        json.string(isFlatpak ? "uninstall" : nameOf(Cleaner::Action::MoveToTrash));
        json.endObject();
    }
    json.endArray();
    json.key("totalBytes");
    json.number(app.totalSize());
    json.endObject();
    return json.take();
}

} // namespace Korvane
