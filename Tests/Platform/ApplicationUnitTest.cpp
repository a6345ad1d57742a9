// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/ApplicationUnit.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

const std::string prefix = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

std::optional<std::string> application(const std::string& units)
{
    return applicationOfControlGroups(prefix + units + "\n");
}

TEST(ApplicationUnit, NamesTheApplicationOfAScope)
{
    EXPECT_EQ(application("app-gnome-org.gnome.Evince-12345.scope"), "org.gnome.Evince");
    EXPECT_EQ(application("app-org.kde.dolphin-0a1b2c3d.scope"), "org.kde.dolphin");
}

TEST(ApplicationUnit, NamesTheApplicationOfAService)
{
    EXPECT_EQ(application("app-KDE-org.kde.okular@12345.service"), "org.kde.okular");
    EXPECT_EQ(application("app-org.kde.amarok.service"), "org.kde.amarok");
    EXPECT_EQ(application("app-org.example.Sync@autostart.service"), "org.example.Sync");
}

TEST(ApplicationUnit, TakesEscapesBack)
{
    EXPECT_EQ(application("app-gnome-firefox\\x2desr-4321.scope"), "firefox-esr");
    EXPECT_EQ(application("app-a\\x5cb\\xC3\\xBC@1.service"), "a\\b\u00FC");
    EXPECT_EQ(application("app-gnome-odd\\x2-1.scope"), "odd\\x2");
    EXPECT_EQ(application("app-gnome-odd\\x-1.scope"), "odd\\x");
}

TEST(ApplicationUnit, KnowsFlatpakAndSnapUnits)
{
    EXPECT_EQ(application("app-flatpak-org.telegram.desktop-2121.scope"), "org.telegram.desktop");
    EXPECT_EQ(application("app-flatpak-com.example.my-app-2121.scope"), "com.example.my-app");
    EXPECT_EQ(application("snap.firefox.firefox-7c4ad7a8-1.scope"), "firefox");
    EXPECT_EQ(application("snap.spotify.spotify.0c1d.scope"), "spotify");
    EXPECT_EQ(application("snap.lone"), std::nullopt);
}

TEST(ApplicationUnit, TakesTheInnermostUnit)
{
    EXPECT_EQ(application("app-org.kde.konsole-77.scope/app-org.kde.kate-78.scope/tab(2).scope"), "org.kde.kate");
    EXPECT_EQ(application("app-org.kde.konsole-77.scope/main"), "org.kde.konsole");
}

TEST(ApplicationUnit, ReadsTheTableOfEitherVersion)
{
    EXPECT_EQ(applicationOfControlGroups("12:pids:/user.slice\n1:name=systemd:/app.slice/app-x-org.a.B-1.scope\n"),
        "org.a.B");
    EXPECT_EQ(applicationOfControlGroups("0::/app.slice/app-org.colon:s-1.scope"), "org.colon:s");
}

TEST(ApplicationUnit, IsNoneForAllOtherUnits)
{
    EXPECT_EQ(application("vte-spawn-0a1b.scope"), std::nullopt);
    EXPECT_EQ(application("dconf.service"), std::nullopt);
    EXPECT_EQ(application("app-org.gnome.Terminal.slice/vte-spawn-1.scope"), std::nullopt);
    EXPECT_EQ(application("app-.scope"), std::nullopt);
    EXPECT_EQ(application("app-x.scope"), std::nullopt);
    EXPECT_EQ(application("app-@.service"), std::nullopt);
    EXPECT_EQ(applicationOfControlGroups(""), std::nullopt);
    EXPECT_EQ(applicationOfControlGroups("0::/"), std::nullopt);
    EXPECT_EQ(applicationOfControlGroups("no colons\n:\n::\n"), std::nullopt);
}

} // namespace
} // namespace Korvane
