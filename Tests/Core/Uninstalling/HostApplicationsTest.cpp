// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/Uninstalling/InventoryFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

using Paths = std::vector<std::filesystem::path>;
using Texts = std::vector<std::string>;

/// AppImages and Flatpaks, listed after the bundles and removed in their own ways.
class HostApplicationsTest : public InventoryFixture {
protected:
    std::filesystem::path image() const { return home() / "Programs/Painter.AppImage"; }
    std::filesystem::path entry() const { return home() / ".local/share/applications/org.example.Painter.desktop"; }
    std::filesystem::path icon() const { return home() / ".local/share/icons/painter.png"; }
    std::filesystem::path flatpak() const { return home() / ".local/share/flatpak/app/org.example.Player"; }

    void addAppImage(const std::string& identifier = "org.example.Painter")
    {
        writeFile(image(), std::size_t{ 90'000 });
        writeFile(entry(), std::size_t{ 300 });
        writeFile(icon(), std::size_t{ 300 });
        catalog().applications.push_back(
            { HostApplication::Kind::AppImage, identifier, "Painter", image(), { entry() }, { icon() } });
    }
    void addFlatpak()
    {
        writeFile(flatpak() / "current/files", std::size_t{ 90'000 });
        catalog().applications.push_back(
            { HostApplication::Kind::Flatpak, "org.example.Player", "Player", flatpak(), {}, {} });
    }
    Paths desktopPlaces(const std::string& identifier) const
    {
        return { home() / ".local/share" / identifier, home() / ".config" / identifier, home() / ".cache" / identifier,
            home() / ".local/state" / identifier };
    }
    void makeDesktopLeftovers(const std::string& identifier) const
    {
        for (const auto& place : desktopPlaces(identifier))
            writeFile(place / "data", std::size_t{ 5000 });
    }
};

} // namespace

TEST_F(HostApplicationsTest, AppImageGoesWithItsEntryItsIconsAndItsData)
{
    addAppImage();
    makeDesktopLeftovers("org.example.Painter");
    const auto app = appAt(image());
    EXPECT_EQ(app.kind, InstalledApp::Kind::AppImage);
    EXPECT_EQ(app.name, "Painter");
    EXPECT_EQ(app.bundleID, "org.example.Painter");
    EXPECT_EQ(app.sizeInBytes, allocatedBytes(image()));
    Paths expected{ entry(), icon() };
    for (const auto& place : desktopPlaces("org.example.Painter"))
        expected.push_back(place);
    EXPECT_EQ(urls(app.leftovers), expected);
    EXPECT_EQ(categories(app),
        (Texts{ "Desktop Entry", "Icons", "Application Support", "Preferences", "Caches", "Other Leftovers" }));
}

TEST_F(HostApplicationsTest, EntryWithoutABlockOfItsOwnGoesToo)
{
    addAppImage();
    writeFile(entry(), std::string_view());
    EXPECT_EQ(urls(appAt(image()).leftovers), (Paths{ entry(), icon() }));
}

TEST_F(HostApplicationsTest, FlatpakIsListedWithItsDataAlone)
{
    addFlatpak();
    writeFile(home() / ".var/app/org.example.Player/data/file", std::size_t{ 5000 });
    writeFile(home() / ".var/app/org.example.Player.Other/data/file", std::size_t{ 5000 });
    const auto app = appAt(flatpak());
    EXPECT_EQ(app.kind, InstalledApp::Kind::Flatpak);
    EXPECT_EQ(urls(app.leftovers), Paths{ home() / ".var/app/org.example.Player" });
    EXPECT_EQ(categories(app), Texts{ "Containers" });
}

TEST_F(HostApplicationsTest, BundlesComeFirstAmongEqualTotals)
{
    catalog().applications.push_back(
        { HostApplication::Kind::AppImage, "org.example.Gone", "Gone", home() / "gone.AppImage", {}, {} });
    std::filesystem::create_directories(own("Empty.app"));
    EXPECT_EQ(places(scanApps()), (Paths{ own("Empty.app"), home() / "gone.AppImage" }));
}

TEST_F(HostApplicationsTest, FoldersOfAllApplicationsAreNobodysLeftovers)
{
    for (const char* name : { "applications", "Trash", "keyrings", "systemd", "fonts", "..", ".", "", "a/b" }) {
        catalog().applications.clear();
        writeFile(home() / ".local/share" / name / "precious", std::size_t{ 5000 });
        writeFile(home() / ".config" / name / "precious", std::size_t{ 5000 });
        addAppImage(name);
        EXPECT_EQ(urls(appAt(image()).leftovers), (Paths{ entry(), icon() })) << name;
    }
}

TEST_F(HostApplicationsTest, BaseDirectoriesThatAreOneFolderGiveOneLeftover)
{
    const auto place = folder() / "everything";
    host().environment.xdgDataHome = place;
    host().environment.xdgConfigHome = place;
    host().environment.xdgCacheHome = place;
    host().environment.xdgStateHome = place;
    addAppImage();
    writeFile(place / "org.example.Painter/data", std::size_t{ 5000 });
    EXPECT_EQ(urls(appAt(image()).leftovers), (Paths{ entry(), icon(), place / "org.example.Painter" }));
}

TEST_F(HostApplicationsTest, AppImageAndAllOfItsLeftoversGoToTheTrash)
{
    addAppImage();
    makeDesktopLeftovers("org.example.Painter");
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    host().files = files;
    const auto app = appAt(image());
    const auto result = AppRemoval::remove(app, host());
    EXPECT_TRUE(result.failures.empty());
    EXPECT_EQ(result.cleanedCount, 7);
    EXPECT_EQ(result.cleanedBytes, app.totalSize());
    EXPECT_EQ(files->trashed().front(), image());
    EXPECT_EQ(files->trashed().size(), 7U);
    EXPECT_TRUE(files->removed().empty() && files->emptied().empty());
    EXPECT_TRUE(catalog().uninstalled().empty());
}

TEST_F(HostApplicationsTest, FlatpakGoesByItsToolAndItsDataToTheTrash)
{
    addFlatpak();
    const auto data = home() / ".var/app/org.example.Player";
    writeFile(data / "file", std::size_t{ 5000 });
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    host().files = files;
    const auto app = appAt(flatpak());
    const auto result = AppRemoval::remove(app, host());
    EXPECT_EQ(result, (Cleaner::Result{ app.totalSize(), 2, {} }));
    EXPECT_EQ(catalog().uninstalled(), Texts{ "org.example.Player" });
    EXPECT_EQ(files->trashed(), Paths{ data });
    EXPECT_TRUE(std::filesystem::exists(flatpak()));
}

TEST_F(HostApplicationsTest, FlatpakThatItsToolKeepsKeepsItsDataToo)
{
    addFlatpak();
    const auto data = home() / ".var/app/org.example.Player";
    writeFile(data / "file", std::size_t{ 5000 });
    catalog().onUninstall = [](const HostApplication& application) {
        throw FileError(application.path, std::make_error_code(std::errc::io_error), "error: no such ref");
    };
    const auto result = AppRemoval::remove(appAt(flatpak()), host());
    EXPECT_EQ(result, (Cleaner::Result{ 0, 0, { { flatpak(), "error: no such ref" } } }));
    EXPECT_TRUE(std::filesystem::exists(data / "file"));
}

} // namespace Korvane
