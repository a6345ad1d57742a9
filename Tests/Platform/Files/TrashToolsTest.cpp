// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/TrashFixture.h"
#include "Tests/Support/DesktopShell.h"

#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

namespace Korvane {
namespace {

/// The Trash as the desktop's own tools see it: gio (with the gvfs daemons on a session bus of its own) and trash-cli.
/// Without these tools nothing could be said, so that is a failure.
class TrashToolsTest : public TrashFixture {
protected:
    void SetUp() override
    {
        for (const char* tool : { "gio", "dbus-run-session", "trash-list", "trash-restore", "trash-put" })
            ASSERT_TRUE(DesktopShell::hasTool(tool))
                << tool << " is missing: install libglib2.0-bin, gvfs, gvfs-daemons, dbus-daemon and trash-cli";
    }

    /// What a shell command says, run in the home folder.
    std::string outputOf(const std::string& command) const
    {
        return DesktopShell(m_environment, m_folder.path()).outputOf(command);
    }

    std::string gio(const std::string& arguments) const
    {
        return outputOf("dbus-run-session -- gio trash " + arguments);
    }

    /// The list of gio, which has one line for each item: its address, a tab, the original path.
    std::set<std::string> listedByGio() const
    {
        std::set<std::string> list;
        std::istringstream lines(gio("--list"));
        for (std::string line; std::getline(lines, line);)
            list.insert(line);
        return list;
    }

    /// Files and folders with names that have gone wrong somewhere before, and what they hold.
    std::map<std::string, std::string> makeItems() const
    {
        std::map<std::string, std::string> items;
        for (const std::string& name : { std::string("plain"), std::string("two words %41"), std::string("-dash"),
                 std::string("odd\xFF\xFE"), std::string("new\nline"), std::string("ümläut€"), std::string(".hidden"),
                 std::string(255, 'n'), std::string("quote'\"\\") }) {
            items[name] = "content of " + name;
            writeFile(home(name), items[name]);
        }
        items["folder/inner"] = "inside";
        writeFile(home("folder/inner"), "inside");
        return items;
    }

    void trashAll(const std::map<std::string, std::string>& items)
    {
        for (const auto& [name, content] : items)
            EXPECT_EQ(trashing(home(name.starts_with("folder/") ? "folder" : name)), "") << name;
    }

    void expectRestored(const std::map<std::string, std::string>& items) const
    {
        for (const auto& [name, content] : items)
            EXPECT_EQ(readFile(home(name)), content) << name;
    }
};

TEST_F(TrashToolsTest, GioListsAndRestoresWhatWeTrashed)
{
    auto items = makeItems();
    // It restores other names than plain ones under what it shows for them ("\\xff"), whoever trashed them.
    for (const char* name : { "odd\xFF\xFE", "new\nline", "ümläut€", "quote'\"\\" })
        items.erase(name);
    trashAll(items);
    const auto lines = listedByGio();
    EXPECT_EQ(lines.size(), items.size());
    std::string restore = "gio list trash:/// >/dev/null\n";
    for (const std::string& line : lines)
        restore += "gio trash --restore '" + line.substr(0, line.find('\t')) + "'\n";
    std::ofstream(m_folder / "restore") << restore;
    outputOf("dbus-run-session -- sh '" + (m_folder / "restore").native() + "'");
    expectRestored(items);
    EXPECT_EQ(m_trash.pairs(), "0");
}

TEST_F(TrashToolsTest, GioSeesWhatWeTrashedAsWhatItTrashedItself)
{
    std::set<std::string> names{ "odd\xFF\xFE", "new\nline", "ümläut€", "quote'\"\\", "%41", "a+b" };
    std::mt19937 random(20260401);
    while (names.size() < 80) {
        std::string name = "r";
        for (const std::size_t length = 2 + random() % 200; name.size() < length;) {
            const char byte = static_cast<char>(1 + random() % 255);
            name += byte == '/' ? '_' : byte;
        }
        names.insert(name);
    }
    std::string list;
    for (const std::string& name : names) {
        writeFile(home(name), "x");
        list += name + '\0';
        EXPECT_EQ(trashing(home(name)), "");
    }
    const auto ours = listedByGio();
    EXPECT_EQ(ours.size(), names.size());
    m_files->emptyTrash(m_trash.path);
    EXPECT_TRUE(listedByGio().empty());
    for (const std::string& name : names)
        writeFile(home(name), "x");
    writeFile(m_folder / "names", list);
    outputOf("xargs -0 gio trash -- < '" + (m_folder / "names").native() + "'");
    EXPECT_EQ(listedByGio(), ours);
}

TEST_F(TrashToolsTest, TrashCliListsAndRestoresWhatWeTrashed)
{
    auto items = makeItems();
    // It takes every path for UTF-8 and would restore this one under another name, whoever trashed it.
    items.erase("odd\xFF\xFE");
    trashAll(items);
    const std::string listed = outputOf("trash-list");
    EXPECT_NE(listed.find(' ' + home("two words %41").native() + '\n'), std::string::npos) << listed;
    for (std::size_t i = 0; i < items.size(); ++i)
        outputOf("echo 0 | trash-restore");
    expectRestored(items);
    EXPECT_EQ(m_trash.pairs(), "0");
}

TEST_F(TrashToolsTest, WhatGioTrashedIsShownAndEmptiedByUs)
{
    const auto items = makeItems();
    for (const auto& [name, content] : items) {
        const std::string item = name.starts_with("folder/") ? "folder" : name;
        std::ofstream(m_folder / "name", std::ios::binary) << home(item).native();
        gio("-- \"$(cat '" + (m_folder / "name").native() + "')\"");
    }
    // gio refuses a name that leaves no room for the record's; everything else it takes.
    EXPECT_TRUE(isThere(home(std::string(255, 'n'))));
    EXPECT_EQ(m_files->contentsOfDirectory(m_trash.path / "files").size(), items.size() - 1);
    m_files->emptyTrash(m_trash.path);
    EXPECT_EQ(m_trash.pairs(), "0");
    EXPECT_TRUE(listedByGio().empty());
}

TEST_F(TrashToolsTest, WhatTrashCliTrashedIsShownAndEmptiedByUs)
{
    writeFile(home("one"), "x");
    writeFile(home("two/inner"), "x");
    outputOf("trash-put one two");
    EXPECT_EQ(m_trash.pairs(), "2");
    EXPECT_EQ(m_files->contentsOfDirectory(m_trash.path / "files").size(), 2U);
    m_files->emptyTrash(m_trash.path);
    EXPECT_EQ(m_trash.pairs(), "0");
    EXPECT_EQ(outputOf("trash-list"), "");
}

TEST_F(TrashToolsTest, ToolsAndWeTakeDifferentNamesInOneTrash)
{
    for (int round = 0; round < 3; ++round) {
        writeFile(home("same"), "ours " + std::to_string(round));
        EXPECT_EQ(trashing(home("same")), "");
        writeFile(home("same"), "gio " + std::to_string(round));
        gio("\"$HOME/same\"");
        writeFile(home("same"), "cli " + std::to_string(round));
        outputOf("trash-put same");
    }
    std::set<std::string> contents;
    for (const auto& path : m_files->contentsOfDirectory(m_trash.path / "files"))
        contents.insert(readFile(path));
    EXPECT_EQ(contents.size(), 9U);
    EXPECT_EQ(m_trash.pairs(), "9");
}

} // namespace
} // namespace Korvane
