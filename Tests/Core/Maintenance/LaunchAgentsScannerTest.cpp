// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentsScanner.h"

#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/Maintenance/MaintenanceFixture.h"
#include "Tests/Fuzz/BinaryListBuilder.h"
#include "Tests/Support/NamesOfAnyBytes.h"

#include <algorithm>
#include <sys/stat.h>

namespace Korvane {

namespace {

using Domain = LaunchAgent::Domain;
using Labels = std::vector<std::string>;

/// The three folders of property lists, and what a scan makes of them.
class LaunchAgentsScannerTest : public MaintenanceFixture {
protected:
    std::filesystem::path agent(const std::string& name) const { return agentsFolder() / name; }
    std::filesystem::path shared(const std::string& name) const { return folder() / "Library/LaunchAgents" / name; }
    std::filesystem::path daemon(const std::string& name) const { return folder() / "Library/LaunchDaemons" / name; }

    /// What a scan makes of one file of these contents in the user's folder.
    LaunchAgent parsed(const std::string& contents)
    {
        writeFile(agent("file-name.plist"), contents);
        return agentAt(agent("file-name.plist"));
    }
};

const std::string oneArgument = "<key>ProgramArguments</key><array><string>/bin/first</string><string>-x</string>"
                                "</array>";

} // namespace

TEST_F(LaunchAgentsScannerTest, EachFolderHasItsDomain)
{
    writeFile(agent("a.plist"), labelled("com.example.a"));
    writeFile(shared("b.plist"), labelled("com.example.b"));
    writeFile(daemon("c.plist"), labelled("com.example.c"));
    const auto agents = scanAgents();
    ASSERT_EQ(agents.size(), 3U);
    const std::vector<std::filesystem::path> files{ agent("a.plist"), shared("b.plist"), daemon("c.plist") };
    const std::vector<Domain> domains{ Domain::User, Domain::SystemAgents, Domain::SystemDaemons };
    for (std::size_t position = 0; position < 3; ++position) {
        EXPECT_EQ(agents[position].url, files[position]);
        EXPECT_EQ(agents[position].domain, domains[position]);
        EXPECT_EQ(agents[position].removable(), position == 0);
        EXPECT_EQ(agents[position].kind, LaunchAgent::Kind::PropertyList);
    }
}

TEST_F(LaunchAgentsScannerTest, ProgramIsStatedOrTheFirstArgument)
{
    EXPECT_EQ(parsed(list("<key>Program</key><string>/bin/p</string>" + oneArgument)).program, "/bin/p");
    EXPECT_EQ(parsed(list(oneArgument)).program, "/bin/first");
    EXPECT_EQ(parsed(list("<key>Program</key><integer>1</integer>" + oneArgument)).program, "/bin/first");
    EXPECT_EQ(parsed(list("<key>Program</key><string></string>" + oneArgument)).program, "");
    for (const char* none : { "", "<key>ProgramArguments</key><array/>",
             "<key>ProgramArguments</key><array><string>/bin/p</string><integer>1</integer></array>",
             "<key>ProgramArguments</key><string>/bin/p</string>", "<key>Program</key><true/>" })
        EXPECT_EQ(parsed(list(none)).program, std::nullopt) << none;
}

TEST_F(LaunchAgentsScannerTest, LabelIsStatedOrTheFileName)
{
    EXPECT_EQ(parsed(labelled("com.example.agent")).label, "com.example.agent");
    EXPECT_EQ(parsed(list("<key>Label</key><integer>5</integer>")).label, "file-name");
    EXPECT_EQ(parsed(list(oneArgument)).label, "file-name");
    writeFile(agent("two.dots.plist"), "");
    EXPECT_EQ(agentAt(agent("two.dots.plist")).label, "two.dots");
}

TEST_F(LaunchAgentsScannerTest, FileThatIsNoPropertyListIsListedByItsName)
{
    const std::string array
        = "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><string>Label</string></array></plist>";
    for (const auto& contents : { std::string("not a property list"), std::string(), std::string("bplist00"), array,
             labelled("cut off").substr(0, 60) }) {
        writeFile(agent("sync-agent.plist"), contents);
        const auto found = agentAt(agent("sync-agent.plist"));
        EXPECT_EQ(found.label, "sync-agent") << contents;
        EXPECT_EQ(found.program, std::nullopt) << contents;
    }
}

TEST_F(LaunchAgentsScannerTest, BinaryListsAreReadAndTheirKeysHaveToBeTexts)
{
    const auto text = [](const std::string& value) { return binaryAscii(value); };
    const auto found = parsed(binaryList({ binaryDictionary({ 1, 3 }, { 2, 4 }), text("Label"), text("com.example.b"),
        text("ProgramArguments"), binaryArray({ 5 }), text("/bin/b") }));
    EXPECT_EQ(found.label, "com.example.b");
    EXPECT_EQ(found.program, "/bin/b");
    const auto numbered = parsed(binaryList({ binaryDictionary({ 1, 3 }, { 2, 4 }), text("Label"),
        text("com.example.b"), binaryInteger(7, 0), text("x") }));
    EXPECT_EQ(numbered.label, "file-name");
    EXPECT_EQ(numbered.program, std::nullopt);
}

TEST_F(LaunchAgentsScannerTest, OnlyVisibleFilesOfExactlyThisExtensionAreListed)
{
    for (const char* name : { "upper.PLIST", "Mixed.Plist", "none", "plist", "back.plist.bak", ".hidden.plist" })
        writeFile(agent(name), labelled(name));
    writeFile(agent("inner/deep.plist"), labelled("deep"));
    EXPECT_EQ(labels(), Labels());
    std::filesystem::create_directory(agent("folder.plist"));
    EXPECT_EQ(labels(), Labels{ "folder" });
}

TEST_F(LaunchAgentsScannerTest, FolderThatIsMissingOrUnreadableLeavesTheOthers)
{
    writeFile(agent("a.plist"), labelled("a"));
    writeFile(shared("b.plist"), labelled("b"));
    EXPECT_EQ(labels(), (Labels{ "a", "b" }));
    writeFile(daemon("c.plist"), labelled("c"));
    const auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeListing = [this](const std::filesystem::path& listed) {
        if (listed == agentsFolder())
            throw FileError(listed, std::make_error_code(std::errc::permission_denied));
    };
    host().files = files;
    EXPECT_EQ(labels(), (Labels{ "b", "c" }));
}

TEST_F(LaunchAgentsScannerTest, EqualLabelsKeepTheOrderOfTheFolders)
{
    writeFile(daemon("1.plist"), labelled("same"));
    writeFile(shared("2.plist"), labelled("SAME"));
    writeFile(agent("3.plist"), labelled("Same"));
    EXPECT_EQ(labels(), (Labels{ "Same", "SAME", "same" }));
    writeFile(agent("4.plist"), labelled("aaa"));
    writeFile(daemon("5.plist"), labelled("ZZZ"));
    EXPECT_EQ(labels(), (Labels{ "aaa", "Same", "SAME", "same", "ZZZ" }));
}

TEST_F(LaunchAgentsScannerTest, EqualLabelsOfOneFolderKeepTheOrderOfTheListing)
{
    writeFile(agent("1.plist"), labelled("b"));
    writeFile(agent("2.plist"), labelled("A"));
    writeFile(agent("3.plist"), labelled("a"));
    Labels expected;
    for (const auto& url : host().files->contentsOfDirectory(agentsFolder())) {
        const auto label = agentAt(url).label;
        if (label != "b")
            expected.push_back(label);
    }
    expected.push_back("b");
    EXPECT_EQ(labels(), expected);
}

TEST_F(LaunchAgentsScannerTest, TwoScansGiveRecordsThatAreNotEqual)
{
    writeFile(agent("a.plist"), labelled("a"));
    const auto first = agentAt(agent("a.plist"));
    const auto second = agentAt(agent("a.plist"));
    EXPECT_NE(first.id, second.id);
    EXPECT_FALSE(first == second);
}

TEST_F(LaunchAgentsScannerTest, NamesOfAnyBytesAreShownAsText)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto url = agentsFolder() / "a\xff\nb.plist";
    writeFile(url, "");
    EXPECT_EQ(agentAt(url).label, "a\uFFFD\u240Ab");
}

TEST_F(LaunchAgentsScannerTest, CancelledScanSaysSo)
{
    writeFile(agent("a.plist"), labelled("a"));
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(LaunchAgentsScanner().scan(host(), cancellation), CancellationError);
}

TEST_F(LaunchAgentsScannerTest, WhatIsNoRegularFileIsListedWithoutBeingWaitedFor)
{
    std::filesystem::create_directories(agentsFolder());
    ASSERT_EQ(::mkfifo(agent("pipe.plist").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", agent("zeros.plist"));
    std::filesystem::create_symlink("loop.plist", agent("loop.plist"));
    std::filesystem::create_symlink("/nowhere", agent("broken.plist"));
    EXPECT_EQ(labels(), (Labels{ "broken", "loop", "pipe", "zeros" }));
}

TEST_F(LaunchAgentsScannerTest, HugeListIsListedByItsNameAndTheOthersAreRead)
{
    writeSparseFile(agent("huge.plist"), std::int64_t{ 1 } << 34);
    writeFile(agent("padded.plist"), labelled("com.example.padded") + std::string(2'000'000, '\n'));
    writeFile(agent("large.plist"), labelled("com.example.large") + std::string(500'000, '\n'));
    writeFile(agent("small.plist"), labelled("com.example.small"));
    EXPECT_EQ(labels(), (Labels{ "com.example.large", "com.example.small", "huge", "padded" }));
}

TEST_F(LaunchAgentsScannerTest, ThousandsOfHostileListsGiveOneRecordEach)
{
    constexpr std::size_t count = 4000;
    const std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">]><plist><string>&a;"
                             "</string></plist>";
    std::string nested = "<?xml version=\"1.0\"?><plist>";
    for (int depth = 0; depth < 2000; ++depth)
        nested += "<array>";
    const auto itself = binaryList({ binaryArray({ 0, 0, 0 }) });
    const std::vector<std::string> contents{ bomb, nested, itself, std::string(9000, '\xff'), "", "bplist00garbage" };
    for (std::size_t position = 0; position < count; ++position)
        writeFile(agent("hostile-" + std::to_string(position) + ".plist"), contents[position % contents.size()]);
    for (int position = 0; position < 100; ++position)
        writeSparseFile(agent("huge-" + std::to_string(position) + ".plist"), std::int64_t{ 64 } << 20);
    writeFile(agent("good.plist"), labelled("com.example.good"));
    const auto start = std::chrono::steady_clock::now();
    const auto found = labels();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(found.size(), count + 101);
    EXPECT_EQ(std::count(found.begin(), found.end(), "com.example.good"), 1);
}

} // namespace Korvane
