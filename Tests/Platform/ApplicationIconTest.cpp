// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ApplicationIcon.h"

#include "Tests/Support/TemporaryFolder.h"

#include <cstdint>
#include <random>
#include <string_view>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace Korvane {
namespace {

using std::filesystem::path;

std::string bytesOf(std::uint32_t number)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> static_cast<unsigned>(shift));
    return bytes;
}

/// The start of a PNG image of this width, and a rest that no one reads here.
std::string png(std::uint32_t width, const std::string& rest = "rest")
{
    return std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16) + bytesOf(width) + bytesOf(width) + rest;
}

std::string entry(const std::string& kind, const std::string& data)
{
    return kind + bytesOf(static_cast<std::uint32_t>(data.size() + 8)) + data;
}

std::string icns(const std::string& entries)
{
    return "icns" + bytesOf(static_cast<std::uint32_t>(entries.size() + 8)) + entries;
}

class ApplicationIconTest : public testing::Test {
protected:
    path bundle() const { return m_folder / "Editor.app"; }

    void setIcns(const std::string& bytes) const
    {
        writeFile(bundle() / "Contents/Info.plist",
            "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIconFile</key>"
            "<string>Editor</string></dict></plist>");
        writeFile(bundle() / "Contents/Resources/Editor.icns", bytes);
    }

    std::string iconOf(const path& application, int pixels = 64) const
    {
        return applicationIcon(application, pixels).value_or("none");
    }

    /// The icon of the bundle with this ".icns" file.
    std::string iconIn(const std::string& bytes, int pixels = 64) const
    {
        setIcns(bytes);
        return iconOf(bundle(), pixels);
    }

    TemporaryFolder m_folder;
};

TEST_F(ApplicationIconTest, IsTheSmallestThatIsLargeEnoughElseTheLargest)
{
    const auto file = icns(entry("TOC ", "table") + entry("ic07", png(128)) + entry("icp4", png(16))
        + entry("ic10", png(1024)) + entry("ic12", png(64)) + entry("ic08", png(256)));
    EXPECT_EQ(iconIn(file, 16), png(16));
    EXPECT_EQ(iconIn(file, 17), png(64));
    EXPECT_EQ(iconIn(file, 64), png(64));
    EXPECT_EQ(iconIn(file, 65), png(128));
    EXPECT_EQ(iconIn(file, 600), png(1024));
    EXPECT_EQ(iconIn(file, 5000), png(1024));
    EXPECT_EQ(iconIn(file, 0), png(16));
    EXPECT_EQ(iconIn(file, -1), png(16));
}

TEST_F(ApplicationIconTest, PassesOverImagesOfOtherFormats)
{
    const auto others = entry("ic08", "\xFF\x4F\xFF\x51 JPEG 2000 of more than a few bytes") + entry("il32", "bits")
        + entry("zzzz", png(64));
    EXPECT_EQ(iconIn(icns(others)), "none");
    EXPECT_EQ(iconIn(icns(others + entry("ic11", png(32)))), png(32));
    EXPECT_EQ(iconIn(icns("")), "none");
    EXPECT_EQ(iconIn(""), "none");
    EXPECT_EQ(iconIn(png(64)), "none");
}

TEST_F(ApplicationIconTest, ReadsNothingBeyondWhatIsThere)
{
    const auto sound = entry("ic11", png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(0) + png(128))), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(7) + png(128))), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(8))), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(9) + "x")), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(5000) + png(128))), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(0xFFFFFFFFU) + png(128))), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07")), png(32));
    EXPECT_EQ(iconIn(icns(sound + "ic07" + bytesOf(8) + png(128))), png(32));
    EXPECT_EQ(iconIn("icns" + bytesOf(0xFFFFFFFFU) + sound), png(32));
    EXPECT_EQ(iconIn("icns" + bytesOf(0) + sound), "none");
    EXPECT_EQ(iconIn("icns" + bytesOf(12) + sound), "none");
    EXPECT_EQ(iconIn("icns"), "none");
}

TEST_F(ApplicationIconTest, TakesNoImageThatStartsInsideAnother)
{
    // The first entry ends within its own image, so that the next one begins there.
    const auto inner = entry("ic10", png(1024));
    const auto overlapping = "ic07" + bytesOf(8 + 24) + png(128, "") + inner;
    EXPECT_EQ(iconIn(icns(overlapping), 128), png(128, ""));
    EXPECT_EQ(iconIn(icns(overlapping), 512), png(1024));
    EXPECT_EQ(iconIn(icns("ic07" + bytesOf(8 + 12) + png(128))), "none");
}

TEST_F(ApplicationIconTest, TakesNoImageBeyondTheSizeOfAnIcon)
{
    const std::string padding(4 * 1024 * 1024, 'x');
    EXPECT_EQ(iconIn(icns(entry("ic10", png(1024, padding)) + entry("ic11", png(32)))), png(32));
    EXPECT_EQ(iconIn(icns(entry("ic10", png(100'000)) + entry("ic11", png(0)))), "none");
    std::string many;
    for (int count = 0; count < 300; ++count)
        many += entry("icp4", png(16));
    EXPECT_EQ(iconIn(icns(many + entry("ic12", png(64)))), png(16));
}

TEST_F(ApplicationIconTest, SurvivesAnyBytes)
{
    const auto sound = icns(entry("icp4", png(16)) + entry("ic12", png(64)) + entry("ic10", png(1024)));
    std::mt19937 random(1);
    for (int count = 0; count < 2000; ++count) {
        auto bytes = sound.substr(0, 1 + random() % sound.size());
        for (int change = 0; change < 3; ++change)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        const auto icon = iconIn(bytes);
        EXPECT_TRUE(icon == "none" || icon.starts_with("\x89PNG")) << count;
    }
}

TEST_F(ApplicationIconTest, IsNoneWithoutAnIcon)
{
    EXPECT_EQ(iconOf(bundle()), "none");
    std::filesystem::create_directory(bundle());
    EXPECT_EQ(iconOf(bundle()), "none");
    setIcns(icns(entry("ic12", png(64))));
    EXPECT_EQ(iconOf(bundle()), png(64));
    const auto file = bundle() / "Contents/Resources/Editor.icns";
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(iconOf(bundle()), "none");
}

TEST_F(ApplicationIconTest, OfAnImageFileIsTheImage)
{
    const std::string svg = "<?xml version=\"1.0\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"/>";
    writeFile(m_folder / "icon.png", png(48));
    writeFile(m_folder / "icon.svg", svg);
    writeFile(m_folder / "icon.xpm", "/* XPM */");
    writeFile(m_folder / "huge.png", png(64, std::string(4 * 1024 * 1024, 'x')));
    writeFile(m_folder / "Editor.AppImage",
        "\x7F"
        "ELF");
    EXPECT_EQ(iconOf(m_folder / "icon.png"), png(48));
    EXPECT_EQ(iconOf(m_folder / "icon.svg"), svg);
    EXPECT_EQ(iconOf(m_folder / "icon.xpm"), "none");
    EXPECT_EQ(iconOf(m_folder / "huge.png"), "none");
    EXPECT_EQ(iconOf(m_folder / "Editor.AppImage"), "none");
    EXPECT_EQ(iconOf(m_folder / "missing.png"), "none");
}

TEST_F(ApplicationIconTest, OfAFlatpakIsAmongTheIconsThatItExports)
{
    // Such an id ends like the name of a bundle.
    const std::string id = "org.example.app";
    const auto folder = m_folder / "flatpak/app" / id;
    const auto theme = folder / "x86_64/stable/0123/export/share/icons/hicolor";
    std::filesystem::create_directories(folder / "x86_64/stable/0123");
    std::filesystem::create_directory_symlink("x86_64/stable", folder / "current");
    std::filesystem::create_directory_symlink("0123", folder / "x86_64/stable/active");
    EXPECT_EQ(iconOf(folder), "none");
    writeFile(theme / "32x32/apps" / (id + ".png"), png(32));
    writeFile(theme / "128x128/apps" / (id + ".png"), png(128));
    writeFile(theme / "64x64/apps/org.example.app.document.png", png(64));
    EXPECT_EQ(iconOf(folder, 20), png(32));
    EXPECT_EQ(iconOf(folder, 64), png(128));
    EXPECT_EQ(iconOf(folder, 256), png(128));
    writeFile(theme / "scalable/apps" / (id + ".svg"), "<svg/>");
    writeFile(theme / "symbolic/apps" / (id + ".svg"), "<svg id='symbolic'/>");
    EXPECT_EQ(iconOf(folder, 64), png(128));
    EXPECT_EQ(iconOf(folder, 256), "<svg/>");
    writeFile(theme / "128x128/apps" / (id + ".png"), "broken");
    EXPECT_EQ(iconOf(folder, 64), "<svg/>");
}

TEST_F(ApplicationIconTest, OfAFlatpakNeverLiesOutsideIt)
{
    const auto folder = m_folder / "app/org.example.App";
    const auto apps = folder / "current/active/export/share/icons/hicolor/64x64/apps";
    std::filesystem::create_directories(apps);
    writeFile(m_folder / "secret.png", png(64));
    std::filesystem::create_symlink(m_folder / "secret.png", apps / "org.example.App.png");
    EXPECT_EQ(iconOf(folder), "none");
}

} // namespace
} // namespace Korvane
