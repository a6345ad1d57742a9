// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Uninstalling/InventoryFixture.h"
#include "Tests/Support/DesktopShell.h"
#include "Tests/Support/TestTrash.h"

#include <gtest/gtest.h>

#include <map>

namespace Korvane {

namespace {

using Everything = std::map<std::string, std::string>;

/// The names that are on one side only, or differ; short, for a test to print.
std::string difference(const Everything& left, const Everything& right)
{
    std::string names;
    for (const auto& [name, content] : left) {
        const auto other = right.find(name);
        if (other == right.end() || other->second != content)
            names += name + "\n";
    }
    return left.size() == right.size() ? names : names + "a different number of names\n";
}

/// An application is uninstalled, found in the Trash, and put back by the desktop's own tools, whole.
class PuttingBackTest : public InventoryFixture {
protected:
    void SetUp() override
    {
        for (const char* tool : { "gio", "dbus-run-session", "trash-restore" })
            ASSERT_TRUE(DesktopShell::hasTool(tool))
                << tool << " is missing: install libglib2.0-bin, gvfs, gvfs-daemons, dbus-daemon and trash-cli";
        makeBundle(own("Other.app"), "com.example.Other");
    }

    /// An application with odd things in it, and all it leaves behind.
    void makeApplication(const std::string& name)
    {
        m_app = own(name);
        makeBundle(m_app, "com.example.Painter", 300'000);
        writeFile(m_app / "Contents/Resources/odd\xFF name", "odd");
        writeFile(m_app / "Contents/Resources/.hidden/new\nline", "hidden");
        std::filesystem::create_symlink("MacOS/program", m_app / "Contents/link");
        std::filesystem::permissions(m_app / "Contents/MacOS/program", std::filesystem::perms(0755));
        makeAllLeftovers("com.example.Painter");
    }

    /// Every name below the home folder outside the Trash, with its kind, its permissions and what it holds.
    Everything everything() const
    {
        Everything found;
        for (const char* part : { "Applications", "Library" }) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(home() / part)) {
                const auto status = entry.symlink_status();
                auto text = std::to_string(static_cast<int>(status.type())) + " "
                    + std::to_string(static_cast<unsigned>(status.permissions())) + " ";
                if (entry.is_symlink())
                    text += std::filesystem::read_symlink(entry.path()).native();
                else if (entry.is_regular_file())
                    text += readFile(entry.path());
                found[entry.path().native()] = std::move(text);
            }
        }
        return found;
    }

    /// Uninstalls; how many items lie in the Trash then.
    std::size_t uninstall()
    {
        const auto app = appAt(m_app);
        const auto result = AppRemoval::remove(app, host());
        EXPECT_EQ(result, (Cleaner::Result{ app.totalSize(), 8, {} }));
        EXPECT_EQ(places(scanApps()), std::vector{ own("Other.app") });
        EXPECT_TRUE(isInTestTrash(host().environment, m_app.filename().native()));
        EXPECT_TRUE(isInTestTrash(host().environment, "com.example.Painter.plist"));
        return host().files->contentsOfDirectory(testTrash(host().environment)).size();
    }

    std::string shell(const std::string& command)
    {
        return DesktopShell(host().environment, folder().path()).outputOf(command);
    }

    std::filesystem::path m_app;
};

} // namespace

TEST_F(PuttingBackTest, ByTheTrashTools)
{
    makeApplication("Painter Ünë.app");
    const auto before = everything();
    const auto count = uninstall();
    EXPECT_EQ(count, 8U);
    for (std::size_t i = 0; i < count; ++i)
        shell("echo 0 | trash-restore");
    EXPECT_EQ(difference(before, everything()), "");
    EXPECT_TRUE(host().files->contentsOfDirectory(testTrash(host().environment)).empty());
}

TEST_F(PuttingBackTest, ByTheDesktop)
{
    // This tool restores other names than plain ones under what it shows for them, whoever trashed them.
    makeApplication("Painter 2.app");
    const auto before = everything();
    EXPECT_EQ(uninstall(), 8U);
    // The list has one line for each item: its address, a tab, the original path.
    shell("dbus-run-session -- sh -c 'gio trash --list | cut -f1 | while read -r item; do"
          " gio trash --restore \"$item\"; done'");
    EXPECT_EQ(difference(before, everything()), "");
    EXPECT_TRUE(host().files->contentsOfDirectory(testTrash(host().environment)).empty());
}

TEST_F(PuttingBackTest, WhatWasPutBackIsFoundAgain)
{
    makeApplication("Painter.app");
    const auto before = appAt(m_app);
    for (auto count = uninstall(); count > 0; --count)
        shell("echo 0 | trash-restore");
    const auto after = appAt(m_app);
    EXPECT_EQ(after.totalSize(), before.totalSize());
    EXPECT_EQ(urls(after.leftovers), urls(before.leftovers));
    EXPECT_EQ(after.bundleID, before.bundleID);
}

} // namespace Korvane
