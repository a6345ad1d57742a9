// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/Flatpaks.h"

#include "Platform/FileError.h"
#include "Tests/Support/FlatpakStandIn.h"
#include "Tests/Support/TemporaryFolder.h"

#include <chrono>
#include <future>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FlatpaksTest : public testing::Test {
protected:
    Flatpaks flatpaks() const { return { m_environment, { m_folder / "none", m_folder / "bin" } }; }

    std::vector<std::string> identifiers() const
    {
        std::vector<std::string> found;
        for (const auto& application : flatpaks().installed(Cancellation()))
            found.push_back(application.identifier);
        return found;
    }

    std::string errorOfUninstalling(const HostApplication& application) const
    {
        try {
            flatpaks().uninstall(application, Cancellation());
        } catch (const FileError& error) {
            EXPECT_EQ(error.path(), application.path);
            return error.localizedDescription();
        }
        return "uninstalled";
    }

    HostApplication application(const std::string& identifier) const
    {
        return { HostApplication::Kind::Flatpak, identifier, "Name",
            m_environment.dataHome() / "flatpak/app" / identifier, {}, {} };
    }

    TemporaryFolder m_folder;
    Environment m_environment = Environment::inFolder(m_folder.path());
    FlatpakStandIn m_tool{ m_folder / "bin", m_environment };
};

TEST(FlatpakIdentifier, HasTheFormOfAReversedDomain)
{
    for (const char* const identifier : { "org.example.App", "org.example.App_2", "io.github.me-too.app", "a.b" })
        EXPECT_TRUE(isFlatpakIdentifier(identifier)) << identifier;
    for (const char* const identifier : { "", ".", "..", "app", "-org.example.App", "--all.x", "org/example.App",
             "org..example", "../x.y", ".org.example", "org.example.", "org.example.App ", "org.exa mple", "org.ex\tx",
             "org.ex\nx", "Application ID", "org.example.\xC3\xA4pp", "org.example.*" })
        EXPECT_FALSE(isFlatpakIdentifier(identifier)) << identifier;
    EXPECT_TRUE(isFlatpakIdentifier("a." + std::string(253, 'b')));
    EXPECT_FALSE(isFlatpakIdentifier("a." + std::string(254, 'b')));
    EXPECT_FALSE(isFlatpakIdentifier(std::string("a.b\0c", 5)));
}

TEST_F(FlatpaksTest, ListsWhatTheToolListsOfTheUser)
{
    const auto second = m_tool.install("org.example.Second", "The Second");
    m_tool.install("org.example.First", "First");
    m_tool.install("org.example.First", "First of another branch");
    const auto found = flatpaks().installed(Cancellation());
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].identifier, "org.example.First");
    EXPECT_EQ(found[0].name, "First");
    EXPECT_EQ(found[1].identifier, "org.example.Second");
    EXPECT_EQ(found[1].name, "The Second");
    EXPECT_EQ(found[1].path, second);
    EXPECT_EQ(found[1].kind, HostApplication::Kind::Flatpak);
    EXPECT_THAT(found[1].icons, IsEmpty());
    EXPECT_THAT(found[1].desktopEntries, IsEmpty());
    EXPECT_EQ(m_tool.calls(), "list --user --app --columns=application,name\n");
}

TEST_F(FlatpaksTest, ListsNothingThatHasNoFolderInTheInstallation)
{
    m_tool.install("org.example.App", "App");
    std::filesystem::create_directories(m_folder / "elsewhere");
    std::filesystem::create_directory_symlink(
        m_folder / "elsewhere", m_environment.dataHome() / "flatpak/app/org.example.Link");
    m_tool.replaceBy("printf 'org.example.Missing\\tMissing\\norg.example.Link\\tLink\\norg.example.App\\n'");
    EXPECT_THAT(identifiers(), ElementsAre("org.example.App"));
    EXPECT_EQ(flatpaks().installed(Cancellation())[0].name, "org.example.App");
}

TEST_F(FlatpaksTest, ListsNothingOfNoise)
{
    m_tool.install("org.example.App", "App");
    m_tool.replaceBy("printf 'Application ID\\tName\\n../../..\\tUp\\n/etc\\tEtc\\n\\n\\t\\n-y\\tOption\\n'; "
                     "head -c 300000 /dev/urandom; head -c 30000000 /dev/zero");
    EXPECT_THAT(identifiers(), IsEmpty());
}

TEST_F(FlatpaksTest, ListsNothingWhenTheToolFails)
{
    m_tool.install("org.example.App", "App");
    m_tool.replaceBy("echo org.example.App; exit 1");
    EXPECT_THAT(identifiers(), IsEmpty());
    m_tool.replaceBy("echo org.example.App; kill -9 $$");
    EXPECT_THAT(identifiers(), IsEmpty());
}

TEST_F(FlatpaksTest, ListsNothingWithoutTheTool)
{
    m_tool.install("org.example.App", "App");
    std::filesystem::remove(m_folder / "bin/flatpak");
    EXPECT_THAT(identifiers(), IsEmpty());
    EXPECT_NE(errorOfUninstalling(application("org.example.App")), "uninstalled");
    writeFile(m_folder / "bin/flatpak", "not executable");
    EXPECT_THAT(identifiers(), IsEmpty());
    writeFile(m_folder / "bin/flatpak", "neither program nor script");
    std::filesystem::permissions(m_folder / "bin/flatpak", std::filesystem::perms::all);
    EXPECT_THAT(identifiers(), IsEmpty());
}

TEST_F(FlatpaksTest, CallsNoToolWhereNothingIsInstalled)
{
    EXPECT_THAT(identifiers(), IsEmpty());
    EXPECT_EQ(m_tool.calls(), "");
    EXPECT_FALSE(std::filesystem::exists(m_environment.dataHome()));
}

TEST_F(FlatpaksTest, EndsAToolThatHangs)
{
    m_tool.install("org.example.App", "App");
    m_tool.replaceBy("sleep 600");
    const Cancellation cancellation;
    auto listing = std::async(std::launch::async, [&] { return flatpaks().installed(cancellation); });
    while (m_tool.calls().empty())
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    const auto begin = std::chrono::steady_clock::now();
    cancellation.cancel();
    EXPECT_THROW(listing.get(), CancellationError);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

TEST_F(FlatpaksTest, WaitsNotForEverForAToolThatHangs)
{
    m_tool.install("org.example.App", "App");
    m_tool.replaceBy("echo org.example.App; sleep 600");
    constexpr Flatpaks::TimeLimits limits{ std::chrono::milliseconds(300), std::chrono::milliseconds(300) };
    const Flatpaks hanging(m_environment, { m_folder / "bin" }, limits);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THAT(hanging.installed(Cancellation()), IsEmpty());
    EXPECT_NE(m_tool.calls(), "");
    try {
        hanging.uninstall(application("org.example.App"), Cancellation());
        ADD_FAILURE() << "nothing was thrown";
    } catch (const FileError& error) {
        EXPECT_EQ(error.code(), std::errc::timed_out);
        EXPECT_EQ(error.path(), application("org.example.App").path);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST_F(FlatpaksTest, HasTheToolUninstall)
{
    const auto folder = m_tool.install("org.example.App", "App");
    const auto other = m_tool.install("org.example.App.Other", "Other");
    const auto data = m_environment.home / ".var/app/org.example.App/data";
    writeFile(data, "kept");
    flatpaks().uninstall(application("org.example.App"), Cancellation());
    EXPECT_EQ(m_tool.calls(), "uninstall --user --noninteractive -y org.example.App\n");
    EXPECT_FALSE(std::filesystem::exists(folder));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_EQ(readFile(data), "kept");
    EXPECT_THAT(identifiers(), ElementsAre("org.example.App.Other"));
}

TEST_F(FlatpaksTest, SaysInTheToolsOwnWordsWhyItFailed)
{
    m_tool.install("org.example.App", "App");
    EXPECT_EQ(errorOfUninstalling(application("org.example.Gone")),
        "error: org.example.Gone/*unspecified*/*unspecified* not installed");
    m_tool.replaceBy("echo 'only this'; exit 3");
    EXPECT_EQ(errorOfUninstalling(application("org.example.App")), "only this");
    m_tool.replaceBy("kill -9 $$");
    EXPECT_EQ(errorOfUninstalling(application("org.example.App")),
        FileError("", std::make_error_code(std::errc::io_error)).localizedDescription());
}

TEST_F(FlatpaksTest, UninstallsNothingButWhatItListed)
{
    m_tool.install("org.example.App", "App");
    const auto refused = FileError("", std::make_error_code(std::errc::invalid_argument)).localizedDescription();
    EXPECT_EQ(errorOfUninstalling(application("--all")), refused);
    EXPECT_EQ(errorOfUninstalling(application("")), refused);
    auto image = application("org.example.App");
    image.kind = HostApplication::Kind::AppImage;
    EXPECT_EQ(errorOfUninstalling(image), refused);
    auto elsewhere = application("org.example.App");
    elsewhere.path = "/var/lib/flatpak/app/org.example.App";
    EXPECT_EQ(errorOfUninstalling(elsewhere), refused);
    EXPECT_EQ(m_tool.calls(), "");
}

TEST_F(FlatpaksTest, KeepsToTheUsersOwnPlaces)
{
    m_tool.install("org.example.App", "App");
    m_tool.replaceBy("echo \"$HOME|$XDG_DATA_HOME|$FLATPAK_USER_DIR\" > \"$state/places\"");
    identifiers();
    EXPECT_EQ(readFile(m_folder / "bin/flatpak-state/places"),
        m_environment.home.native() + '|' + m_environment.dataHome().native() + '|' + m_environment.dataHome().native()
            + "/flatpak\n");
}

} // namespace
} // namespace Korvane
