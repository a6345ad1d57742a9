// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/AppReports.h"
#include "CLI/Program.h"
#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestBundles.h"
#include "Tests/Support/TestCatalog.h"
#include "Tests/Support/TestHost.h"

namespace Korvane {

namespace {

/// Applications as the command line lists them, and what it says before it uninstalls one.
class ProgramAppsTest : public ProgramFixture {
protected:
    std::filesystem::path app(const std::string& name) const { return home() / "Applications" / name; }
    std::filesystem::path cache(const std::string& identifier) const { return home() / "Library/Caches" / identifier; }

    /// An application of the test, and its cache.
    std::filesystem::path makeApp(const std::string& name, const std::string& identifier) const
    {
        writeFile(cache(identifier) / "data", std::size_t{ 9000 });
        return makeBundle(app(name), identifier);
    }

    /// The applications that were printed and lie in the home folder of the test.
    QJsonArray apps() const
    {
        QJsonArray found;
        for (const auto& value : QJsonDocument::fromJson(QByteArray::fromStdString(output)).array()) {
            if (text(value.toObject()["path"]).starts_with(home().string()))
                found.append(value);
        }
        return found;
    }

    /// A run in this process, on a desktop where these identifiers run.
    ExitStatus runOnDesktop(const std::vector<std::string>& arguments, std::vector<std::string> running)
    {
        auto test = makeTestHost(folder);
        test.workspace->setRunning(std::move(running));
        test.host.applications = std::make_shared<TestCatalog>();
        Program program(test.host, {});
        return runHere(program, arguments);
    }
};

} // namespace

TEST_F(ProgramAppsTest, AppsArePrintedAsOneArrayWithTheMembersInOrder)
{
    const auto url = makeApp("Painter.app", "com.example.painter");
    writeFile(app("Bare.app") / "program", std::size_t{ 500 });
    EXPECT_EQ(run({ "apps", "--json" }), 0);
    ASSERT_EQ(apps().size(), 2);
    const auto first = apps()[0].toObject();
    EXPECT_EQ(text(first["path"]), url);
    EXPECT_EQ(text(first["name"]), "Painter");
    EXPECT_EQ(text(first["bundleID"]), "com.example.painter");
    EXPECT_FALSE(first["running"].toBool(true));
    const auto leftovers = first["leftovers"].toArray();
    ASSERT_EQ(leftovers.size(), 1);
    EXPECT_EQ(text(leftovers[0].toObject()["path"]), cache("com.example.painter"));
    EXPECT_EQ(text(leftovers[0].toObject()["category"]), "Caches");
    EXPECT_TRUE(leftovers[0].toObject()["selectableByDefault"].toBool());
    EXPECT_EQ(first["totalSize"].toInteger(),
        first["sizeInBytes"].toInteger() + leftovers[0].toObject()["sizeInBytes"].toInteger());
    EXPECT_TRUE(apps()[1].toObject()["bundleID"].isNull());
    EXPECT_TRUE(apps()[1].toObject()["leftovers"].toArray().isEmpty());
    std::size_t position = 0;
    for (const char* key : { "[{\"path\":", "\"name\":", "\"bundleID\":", "\"sizeInBytes\":", "\"totalSize\":",
             "\"running\":", "\"leftovers\":[{\"path\":", "\"displayName\":", "\"category\":" }) {
        position = output.find(key, position);
        EXPECT_NE(position, std::string::npos) << key;
    }
}

TEST_F(ProgramAppsTest, AppsAreListedForPeopleToo)
{
    const auto url = makeApp("Painter.app", "com.example.painter");
    EXPECT_EQ(run({ "apps" }), 0);
    for (const auto& part : { std::string("Painter"), std::string("com.example.painter"), url.string() + "\n",
             cache("com.example.painter").string() + "\n", std::string("Total: ") })
        EXPECT_NE(output.find(part), std::string::npos) << output;
    EXPECT_EQ(errors, "");
}

TEST_F(ProgramAppsTest, NoApplicationsAreAnEmptyArray)
{
    EXPECT_EQ(runOnDesktop({ "apps", "--json" }, {}), ExitStatus::Done);
    EXPECT_EQ(output, "[]\n");
    EXPECT_EQ(runOnDesktop({ "apps" }, {}), ExitStatus::Done);
    EXPECT_EQ(output, "No applications found.\n");
}

TEST_F(ProgramAppsTest, UninstallWithoutYesOnlySaysWhatItWouldDo)
{
    const Sentinel program(app("Painter.app") / "Contents/MacOS/sentinel");
    const auto url = makeApp("Painter.app", "com.example.painter");
    for (const auto& name : { url.string(), url.string() + "/", std::string("com.example.painter") }) {
        EXPECT_EQ(run({ "uninstall", name }), 0) << name;
        EXPECT_NE(output.find("Would be moved to the Trash:"), std::string::npos) << output;
        EXPECT_NE(output.find(url.string() + "\n"), std::string::npos);
        EXPECT_NE(output.find(cache("com.example.painter").string() + "\n"), std::string::npos);
        EXPECT_NE(output.find("--yes"), std::string::npos);
    }
    EXPECT_EQ(run({ "uninstall", "com.example.painter", "--json" }), 0);
    EXPECT_TRUE(json()["dryRun"].toBool());
    EXPECT_EQ(text(json()["bundleID"]), "com.example.painter");
    const auto items = json()["items"].toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(text(items[0].toObject()["category"]), "Applications");
    for (const auto& item : items)
        EXPECT_EQ(text(item.toObject()["action"]), "moveToTrash");
    EXPECT_EQ(program.difference(), "");
    EXPECT_TRUE(std::filesystem::exists(cache("com.example.painter") / "data"));
}

TEST_F(ProgramAppsTest, ApplicationThatRunsIsRefused)
{
    const auto url = makeApp("Painter.app", "com.example.painter");
    for (const auto& arguments : { std::vector<std::string>{ "uninstall", url, "--yes" },
             std::vector<std::string>{ "uninstall", "com.example.painter", "--yes", "--json" },
             std::vector<std::string>{ "uninstall", url } }) {
        EXPECT_EQ(runOnDesktop(arguments, { "com.example.painter" }), ExitStatus::Failed);
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, "korvane-cli: Painter is running; quit it first. Nothing has been changed\n");
    }
    EXPECT_TRUE(std::filesystem::exists(url) && std::filesystem::exists(cache("com.example.painter")));
    EXPECT_EQ(runOnDesktop({ "apps", "--json" }, { "com.example.painter" }), ExitStatus::Done);
    EXPECT_TRUE(apps()[0].toObject()["running"].toBool());
    EXPECT_EQ(runOnDesktop({ "apps" }, { "com.example.painter" }), ExitStatus::Done);
    EXPECT_NE(output.find("(running)"), std::string::npos);
}

TEST_F(ProgramAppsTest, IdentifierOfTwoApplicationsIsRefusedWithTheirPaths)
{
    const auto first = makeApp("First.app", "com.example.same");
    const auto second = makeApp("Second.app", "com.example.same");
    EXPECT_EQ(run({ "uninstall", "com.example.same", "--yes" }), 2);
    EXPECT_NE(errors.find("2 applications"), std::string::npos) << errors;
    EXPECT_NE(errors.find(first.string()), std::string::npos) << errors;
    EXPECT_NE(errors.find(second.string()), std::string::npos) << errors;
    EXPECT_TRUE(std::filesystem::exists(first) && std::filesystem::exists(second));
    EXPECT_EQ(run({ "uninstall", first }), 0);
}

TEST_F(ProgramAppsTest, WhatIsNotAmongTheApplicationsIsRefused)
{
    makeApp("Painter.app", "com.example.painter");
    const Sentinel outside(home() / "Documents/Other.app/Contents/Info.plist");
    for (const auto& wrong :
        { (home() / "Documents/Other.app").string(), (home() / "Applications").string(), std::string("Painter"),
            std::string("com.example.Painter"), std::string("/"), std::string("../Painter.app"), std::string() }) {
        EXPECT_EQ(run({ "uninstall", wrong, "--yes" }), 2) << wrong;
        EXPECT_NE(errors.find("'korvane-cli apps' lists them"), std::string::npos) << errors;
    }
    EXPECT_EQ(outside.difference(), "");
    EXPECT_TRUE(std::filesystem::exists(app("Painter.app")));
}

TEST_F(ProgramAppsTest, FlatpakIsSaidToGoForGood)
{
    const InstalledApp flatpak("/flatpak/app/org.example.Player", "Player", "org.example.Player", 5000,
        { ScanItem("/home/.var/app/org.example.Player", std::nullopt, "Containers", 4000, true) },
        InstalledApp::Kind::Flatpak);
    const auto report = uninstallPlanAsText(flatpak);
    const auto heading = report.find("Would be uninstalled by the Flatpak tool, for good:\n");
    ASSERT_NE(heading, std::string::npos) << report;
    EXPECT_LT(report.find("/flatpak/app/org.example.Player\n"), report.find("Would be moved to the Trash:\n"));
    EXPECT_LT(report.find("Would be moved to the Trash:\n"), report.find("/home/.var/app/org.example.Player\n"));
    output = uninstallPlanAsJson(flatpak);
    EXPECT_EQ(text(json()["items"].toArray()[0].toObject()["action"]), "uninstall");
    EXPECT_EQ(text(json()["items"].toArray()[1].toObject()["action"]), "moveToTrash");
}

} // namespace Korvane
