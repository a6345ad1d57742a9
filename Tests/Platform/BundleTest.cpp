// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Bundle.h"
#include "Tests/Fuzz/BinaryListBuilder.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

std::string list(std::string_view pairs)
{
    return std::string("<plist version=\"1.0\"><dict>").append(pairs).append("</dict></plist>");
}

std::string listWithIdentifier(std::string_view identifier)
{
    return list(std::string("<key>CFBundleIdentifier</key><string>").append(identifier).append("</string>"));
}

/// What a bundle whose only description has these pairs says of its identifier.
std::optional<std::string> identifierOf(std::string_view pairs)
{
    const TemporaryFolder folder;
    writeFile(folder / "A.app/Contents/Info.plist", list(pairs));
    return Bundle::open(folder / "A.app")->bundleIdentifier();
}

/// The icon of a bundle in `folder` that names it so, relative to the bundle; empty when there is none.
std::string iconOf(const TemporaryFolder& folder, std::string_view name)
{
    writeFile(folder / "A.app/Contents/Info.plist",
        list(std::string("<key>CFBundleIconFile</key><string>").append(name).append("</string>")));
    const auto icon = Bundle::open(folder / "A.app")->iconFile();
    return icon ? icon->lexically_relative(folder / "A.app").string() : std::string();
}

} // namespace

TEST(Bundle, DescribesItselfInEitherForm)
{
    const TemporaryFolder folder;
    writeFile(folder / "Xml.app/Contents/Info.plist", listWithIdentifier("com.example.Xml"));
    writeFile(folder / "Binary.app/Contents/Info.plist",
        binaryList(
            { binaryDictionary({ 1 }, { 2 }), binaryAscii("CFBundleIdentifier"), binaryUtf16(u"com.example.B") }));
    EXPECT_EQ(Bundle::open(folder / "Xml.app")->bundleIdentifier(), "com.example.Xml");
    EXPECT_EQ(Bundle::open(folder / "Binary.app")->bundleIdentifier(), "com.example.B");
    EXPECT_EQ(Bundle::open(folder / "Xml.app")->information()->root().size(), 1U);
}

TEST(Bundle, TheFirstDescriptionCounts)
{
    const TemporaryFolder folder;
    writeFile(folder / "A.app/Info.plist", listWithIdentifier("flat"));
    EXPECT_EQ(Bundle::open(folder / "A.app")->bundleIdentifier(), "flat");
    writeFile(folder / "A.app/Resources/Info.plist", listWithIdentifier("old"));
    EXPECT_EQ(Bundle::open(folder / "A.app")->bundleIdentifier(), "old");
    writeFile(folder / "A.app/Contents/Info.plist", listWithIdentifier("modern"));
    EXPECT_EQ(Bundle::open(folder / "A.app")->bundleIdentifier(), "modern");
    writeFile(folder / "A.app/Contents/Info.plist", "not a list");
    EXPECT_EQ(Bundle::open(folder / "A.app")->bundleIdentifier(), std::nullopt) << "no other stands in for it";
    EXPECT_EQ(Bundle::open(folder / "A.app")->information(), nullptr);
}

TEST(Bundle, OneOfAnotherDeviceIsFoundInItsWrapper)
{
    const TemporaryFolder folder;
    writeFile(folder / "A.app/Wrapper/Inner.app/Info.plist",
        list("<key>CFBundleIdentifier</key><string>com.example.Inner</string>"
             "<key>CFBundleIconFile</key><string>Icon</string>"));
    writeFile(folder / "A.app/Wrapper/Inner.app/Icon.icns", "icon");
    std::filesystem::create_directory_symlink("Wrapper/Inner.app", folder / "A.app/WrappedBundle");
    const auto bundle = Bundle::open(folder / "A.app");
    EXPECT_EQ(bundle->bundleIdentifier(), "com.example.Inner");
    EXPECT_EQ(bundle->iconFile(), folder / "A.app/WrappedBundle/Icon.icns");
}

TEST(Bundle, OnlyAFolderIsOne)
{
    const TemporaryFolder folder;
    writeFile(folder / "File.app", "text");
    std::filesystem::create_directory(folder / "Empty.app");
    std::filesystem::create_directory_symlink("Empty.app", folder / "Link.app");
    EXPECT_FALSE(Bundle::open(folder / "File.app"));
    EXPECT_FALSE(Bundle::open(folder / "Absent.app"));
    for (const char* name : { "Empty.app", "Link.app" }) {
        const auto bundle = Bundle::open(folder / name);
        ASSERT_TRUE(bundle);
        EXPECT_EQ(bundle->bundleIdentifier(), std::nullopt);
        EXPECT_EQ(bundle->iconFile(), std::nullopt);
        EXPECT_EQ(bundle->information(), nullptr);
    }
}

TEST(Bundle, AnIdentifierIsATextThatIsNotEmpty)
{
    EXPECT_EQ(identifierOf("<key>CFBundleIdentifier</key><string/>"), std::nullopt);
    EXPECT_EQ(identifierOf("<key>CFBundleIdentifier</key><integer>7</integer>"), std::nullopt);
    EXPECT_EQ(identifierOf("<key>CFBundleidentifier</key><string>a</string>"), std::nullopt);
    EXPECT_EQ(identifierOf(""), std::nullopt);
    EXPECT_EQ(identifierOf("<key>CFBundleIdentifier</key><string>../../a</string>"), "../../a") << "as it stands";
    const TemporaryFolder folder;
    writeFile(
        folder / "A.app/Contents/Info.plist", "<plist><array><string>CFBundleIdentifier</string></array></plist>");
    EXPECT_EQ(Bundle::open(folder / "A.app")->bundleIdentifier(), std::nullopt) << "a list that is no dictionary";
}

TEST(Bundle, FindsItsIcon)
{
    const TemporaryFolder folder;
    writeFile(folder / "A.app/Contents/Resources/Icon.icns", "icon");
    writeFile(folder / "A.app/Contents/Resources/v1.2.icns", "icon");
    writeFile(folder / "A.app/Contents/Resources/Icon.png", "icon");
    EXPECT_EQ(iconOf(folder, "Icon.icns"), "Contents/Resources/Icon.icns");
    EXPECT_EQ(iconOf(folder, "Icon"), "Contents/Resources/Icon.icns");
    EXPECT_EQ(iconOf(folder, "v1.2"), "Contents/Resources/v1.2.icns");
    EXPECT_EQ(iconOf(folder, "Icon.png"), "Contents/Resources/Icon.png");
    EXPECT_EQ(iconOf(folder, "Absent"), "");
    EXPECT_EQ(iconOf(folder, ""), "");

    writeFile(folder / "Flat.app/Info.plist", list("<key>CFBundleIconFile</key><string>Icon</string>"));
    writeFile(folder / "Flat.app/Icon.icns", "icon");
    EXPECT_EQ(Bundle::open(folder / "Flat.app")->iconFile(), folder / "Flat.app/Icon.icns");
}

TEST(Bundle, NeverNamesAnIconOutsideItself)
{
    const TemporaryFolder folder;
    const auto resources = folder / "A.app/Contents/Resources";
    writeFile(folder / "Outside.icns", "icon");
    writeFile(folder / "A.app/Inside.icns", "icon");
    writeFile(folder / "A.application/Beside.icns", "icon");
    std::filesystem::create_directories(resources / "Folder.icns");
    std::filesystem::create_symlink("../../../Outside.icns", resources / "Out.icns");
    std::filesystem::create_symlink("../../../A.application/Beside.icns", resources / "Beside.icns");
    std::filesystem::create_symlink("../../Inside.icns", resources / "In.icns");
    std::filesystem::create_symlink("Loop.icns", resources / "Loop.icns");
    for (const char* name : { "../../../Outside.icns", "../../Inside.icns", "..", ".", "/etc/hostname", "Folder.icns",
             "Out.icns", "Beside.icns", "Loop.icns" })
        EXPECT_EQ(iconOf(folder, name), "") << name;
    EXPECT_EQ(iconOf(folder, "In.icns"), "Contents/Resources/In.icns");
}

} // namespace Korvane
