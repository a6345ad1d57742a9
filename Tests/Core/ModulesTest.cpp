// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Modules.h"

#include "Core/Scanning/DuplicatesScanner.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Tests/Core/ScanFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

class ModulesTest : public ScanFixture { };

struct Presentation {
    CleanerModule module;
    std::string_view rawValue, title, subtitle, systemImage;
    AccentColor accent;
};

} // namespace

TEST_F(ModulesTest, RawValueIsFoundExactlyAsWritten)
{
    EXPECT_EQ(cleanerModule("systemJunk"), CleanerModule::systemJunk);
    EXPECT_EQ(cleanerModule("SystemJunk"), std::nullopt);
    EXPECT_EQ(cleanerModule("systemJunk "), std::nullopt);
    EXPECT_EQ(cleanerModule(""), std::nullopt);
    for (const auto module : allCleanerModules)
        EXPECT_EQ(cleanerModule(rawValue(module)), module);
}

TEST_F(ModulesTest, ModulesWithScreensOfTheirOwnHaveNoScanner)
{
    EXPECT_EQ(scanner(CleanerModule::uninstaller, *host().files), nullptr);
    EXPECT_EQ(scanner(CleanerModule::maintenance, *host().files), nullptr);
    EXPECT_EQ(scanner(CleanerModule::iosDevice, *host().files), nullptr);
}

TEST_F(ModulesTest, SystemJunkHasItsScanner)
{
    const auto found = scanner(CleanerModule::systemJunk, *host().files);
    EXPECT_NE(dynamic_cast<SystemJunkScanner*>(found.get()), nullptr);
}

TEST_F(ModulesTest, DuplicatesStartAtTheHomeFolderWithTheSizesOfTheModule)
{
    const auto found = scanner(CleanerModule::duplicates, *host().files);
    const auto* duplicates = dynamic_cast<DuplicatesScanner*>(found.get());
    ASSERT_NE(duplicates, nullptr);
    EXPECT_EQ(duplicates->root, home());
    EXPECT_EQ(duplicates->minimumFileSize, 1'048'576);
    EXPECT_EQ(duplicates->hashPrefixBytes, 4'194'304);
}

TEST_F(ModulesTest, LargeFilesHaveTheThresholdAndCountOfTheModule)
{
    const auto found = scanner(CleanerModule::largeFiles, *host().files);
    const auto* largeFiles = dynamic_cast<LargeFilesScanner*>(found.get());
    ASSERT_NE(largeFiles, nullptr);
    EXPECT_EQ(largeFiles->thresholdBytes, 104'857'600);
    EXPECT_EQ(largeFiles->maxResults, 300);
}

TEST_F(ModulesTest, EachReadGivesAFreshScanner)
{
    const auto first = scanner(CleanerModule::systemJunk, *host().files);
    const auto second = scanner(CleanerModule::systemJunk, *host().files);
    EXPECT_NE(first.get(), second.get());
}

TEST_F(ModulesTest, ModulesComeInDeclarationOrder)
{
    std::vector<std::string_view> names;
    for (const auto module : allCleanerModules)
        names.push_back(rawValue(module));
    EXPECT_EQ(names,
        (std::vector<std::string_view>{
            "systemJunk", "largeFiles", "uninstaller", "maintenance", "duplicates", "iosDevice" }));
}

TEST_F(ModulesTest, EachModuleIsPresentedAsWritten)
{
    const Presentation expected[]{
        { CleanerModule::systemJunk, "systemJunk", "System Junk", "Caches, logs and leftover development junk",
            "trash.circle.fill", AccentColor::cyan },
        { CleanerModule::largeFiles, "largeFiles", "Large & Old Files", "Find the files eating your disk",
            "externaldrive.fill.badge.exclamationmark", AccentColor::orange },
        { CleanerModule::uninstaller, "uninstaller", "Uninstaller", "Remove apps with all their leftovers",
            "xmark.bin.fill", AccentColor::red },
        { CleanerModule::maintenance, "maintenance", "Maintenance", "Speed up and maintain your Mac", "speedometer",
            AccentColor::green },
        { CleanerModule::duplicates, "duplicates", "Duplicates", "Find duplicate files and photos", "doc.on.doc.fill",
            AccentColor::purple },
        { CleanerModule::iosDevice, "iosDevice", "iPhone & iPad", "Clean a connected iPhone or iPad", "iphone.gen3",
            AccentColor::blue },
    };
    for (const auto& module : expected) {
        EXPECT_EQ(rawValue(module.module), module.rawValue);
        EXPECT_EQ(title(module.module), module.title);
        EXPECT_EQ(subtitle(module.module), module.subtitle);
        EXPECT_EQ(systemImage(module.module), module.systemImage);
        EXPECT_EQ(accent(module.module), module.accent);
    }
}

TEST_F(ModulesTest, EveryModuleIsAvailable)
{
    for (const auto module : allCleanerModules)
        EXPECT_TRUE(available(module));
}

} // namespace Korvane
