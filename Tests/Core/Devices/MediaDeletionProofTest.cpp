// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/MediaDeletionFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/TestProcessRunner.h"

namespace Korvane {

namespace {

/// What counts as proof that a file is gone.
class MediaDeletionProofTest : public MediaDeletionFixture { };

} // namespace

TEST_F(MediaDeletionProofTest, FileThatWasGoneAlreadyIsGone)
{
    const auto listing = list();
    std::filesystem::remove(tool().rules.device / "DCIM/100APPLE/IMG_1.JPG");
    EXPECT_EQ(manager().remove({ first }, udid, listing), Paths());
}

TEST_F(MediaDeletionProofTest, ListingThatFailsIsNoProofThatFilesAreGone)
{
    const auto listing = list();
    for (const auto& style : styles()) {
        const auto expectUnproven = [&](const std::string& when, const auto& misbehave) {
            auto former = tool().rules;
            change([&](auto& rules) {
                rules.style = style;
                rules.ignores = "rm";
                misbehave(rules);
            });
            EXPECT_EQ(manager().remove({ third, first }, udid, listing), (Paths{ third, first }))
                << style << ", " << when;
            change([&](auto& rules) { rules = former; });
        };
        expectUnproven("breaks ls", [](auto& rules) { rules.breaks = "ls"; });
        expectUnproven("dies ls", [](auto& rules) { rules.dies = "ls"; });
        expectUnproven("complains ls", [](auto& rules) { rules.complains = "ls"; });
        expectUnproven("complains start", [](auto& rules) { rules.complains = "start"; });
        expectUnproven("dies start", [](auto& rules) { rules.dies = "start"; });
        if (style != "bare")
            expectUnproven("leaves ls", [](auto& rules) { rules.leaves = "ls"; });
    }
}

TEST_F(MediaDeletionProofTest, ListingWithoutAPromptIsNoProofWhereThereWasOneBefore)
{
    auto runner = std::make_shared<TestProcessRunner>();
    runner->answer = [&](const ChildProcess& process, const Cancellation&) {
        ChildResult result = TestProcessRunner::exited(0);
        if (process.input.starts_with("rm "))
            result.output.text = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/\x1b[m> ";
        return result;
    };
    host().processes = runner;
    EXPECT_EQ(manager().remove({ first }, udid, {}), (Paths{ first }));
}

TEST_F(MediaDeletionProofTest, ListingThatIsNoTextIsNoProofThatFilesAreGone)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    tool().add("/DCIM/100APPLE/a\xFF.jpg");
    const auto listing = list();
    change([](auto& rules) { rules.ignores = "rm"; });
    EXPECT_EQ(manager().remove({ third, first }, udid, listing), (Paths{ third, first }));
    change([](auto& rules) { rules.ignores = ""; });
    EXPECT_EQ(manager().remove({ third, first }, udid, listing), (Paths{ first }));
}

TEST_F(MediaDeletionProofTest, FolderOfWhichAllWasDeletedIsProof)
{
    for (const auto& style : styles()) {
        tool().add(third);
        change([&](auto& rules) { rules.style = style; });
        EXPECT_EQ(remove({ third }), Paths()) << style;
    }
}

TEST_F(MediaDeletionProofTest, FolderThatTheDeviceRemovesWithItsLastFileIsProof)
{
    for (const auto& style : styles()) {
        tool().add(first);
        tool().add(third);
        change([&](auto& rules) {
            rules.style = style;
            rules.sweeps = true;
        });
        EXPECT_EQ(remove({ third, first }), Paths()) << style;
        EXPECT_FALSE(tool().has("/DCIM/101APPLE")) << style;
        const Paths expected{ "rm " + third, "rm " + first, "ls /DCIM/101APPLE", "ls /DCIM/100APPLE" };
        EXPECT_EQ(commands(), expected) << style;
    }
}

TEST_F(MediaDeletionProofTest, FolderThatIsMissingByAnotherReadingIsNoProof)
{
    const std::string inOdd = "/DCIM/odd \xC3\xA9/IMG_9.JPG";
    tool().add(inOdd);
    EXPECT_EQ(remove({ inOdd }), (Paths{ inOdd }));
    EXPECT_TRUE(tool().has(inOdd));
}

TEST_F(MediaDeletionProofTest, FolderThatIsCalledAsAnErrorIsNoProof)
{
    const std::string path = "/DCIM/(8)/IMG_9.JPG";
    tool().add(path);
    const auto listing = list();
    change([](auto& rules) {
        rules.ignores = "rm";
        rules.breaks = "ls";
        rules.breakage = "Failed to list '/DCIM/(8)': I/O error (14)";
    });
    EXPECT_EQ(manager().remove({ path }, udid, listing), (Paths{ path }));
}

TEST_F(MediaDeletionProofTest, FolderThatIsListedByItsOwnNameIsNoProof)
{
    const auto listing = list();
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.ignores = "rm";
            rules.denies = "/DCIM/100APPLE";
        });
        for (const bool byPath : { false, true }) {
            change([&](auto& rules) { rules.deniesByPath = byPath; });
            EXPECT_EQ(manager().remove({ first, second }, udid, listing), (Paths{ first, second })) << style << byPath;
        }
    }
}

TEST_F(MediaDeletionProofTest, NameThatLooksLikeProgressBeforeAnErrorDoesNotHideWhatIsGone)
{
    tool().add("/DCIM/100APPLE/IMG (1)Error: x.JPG");
    tool().add("/DCIM/100APPLE/99%Error: x.JPG");
    for (const auto& style : styles()) {
        tool().add(first);
        change([&](auto& rules) { rules.style = style; });
        EXPECT_EQ(remove({ first }), Paths()) << style;
    }
}

TEST_F(MediaDeletionProofTest, ListingThatChangedMeanwhileDoesNotMatter)
{
    const auto listing = list();
    tool().add("/DCIM/100APPLE/IMG_9.JPG");
    std::filesystem::remove(tool().rules.device / second.substr(1));
    EXPECT_EQ(manager().remove({ first, second }, udid, listing), Paths());
    EXPECT_TRUE(tool().has("/DCIM/100APPLE/IMG_9.JPG"));
}

} // namespace Korvane
