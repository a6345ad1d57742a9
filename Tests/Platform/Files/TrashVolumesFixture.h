// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/FreedesktopTrash.h"
#include "Tests/Platform/Files/TrashFixture.h"
#include "Tests/Support/PrivateMounts.h"

#include <unistd.h>

namespace Korvane {

/// Things on another volume than the home folder's; where none can be mounted, a folder is taken for one.
class TrashVolumesFixture : public TrashFixture {
protected:
    void SetUp() override
    {
        std::filesystem::create_directory(m_volume);
        m_canMount = canMountPrivately();
    }

    /// Runs `work` with a volume in memory mounted that holds "folder/item".
    std::string onVolume(const std::function<std::string()>& work, const std::string& options = {}) const
    {
        return runWithPrivateMounts([&] {
            mountMemory(m_volume, options);
            writeFile(m_volume / "folder/item", "content");
            return work();
        });
    }

    /// Who the child of onVolume is there.
    TrashView ownTrash() const { return { m_volume / ".Trash-0" }; }

    /// That the item was neither moved nor changed, and no record is left in any Trash.
    std::string untouched() const
    {
        const bool isSame = readFile(m_volume / "folder/item") == "content";
        std::string records;
        for (const auto& trash : { ownTrash().path, m_volume / ".Trash/0", m_trash.path }) {
            if (std::filesystem::is_directory(trash / "info") && !std::filesystem::is_empty(trash / "info"))
                records = ", a record in " + trash.native();
        }
        return (isSame ? "untouched" : "touched") + records;
    }

    /// What comes of moving the item while something else lies in the place of its Trash.
    std::string refusingTheTrash() const
    {
        const std::string failure = trashing(m_volume / "folder/item");
        return (failure.find("is not a folder of this user") != std::string::npos ? "refused, " : failure)
            + untouched();
    }

    /// What a machine without private mounts can show: a folder that is taken for the top of a volume.
    std::string trashingAtTop() const
    {
        return failureOf([&] {
            ItemPlace item = findItem(m_volume / "item");
            item.parentStatus.isMountRoot = true;
            moveToTrash(item, openVolumeTrash(item));
        });
    }

    /// The rules of a volume's Trash, all of them, on such a folder.
    void expectRulesKept() const
    {
        const std::string user = std::to_string(geteuid());
        const TrashView own{ m_volume / (".Trash-" + user) };
        const auto shared = m_volume / ".Trash";
        const auto outside = m_sentinel.path().parent_path();
        const auto isRefused = [&] {
            return trashingAtTop().find("is not a folder of this user") != std::string::npos
                && isThere(m_volume / "item");
        };
        writeFile(m_volume / "item", "content");
        writeFile(own.path, "a file");
        EXPECT_TRUE(isRefused());
        std::filesystem::remove(own.path);
        std::filesystem::create_directory_symlink(outside, own.path);
        EXPECT_TRUE(isRefused());
        std::filesystem::remove(own.path);
        std::filesystem::create_directory_symlink(outside, shared);
        EXPECT_EQ(trashingAtTop(), "");
        EXPECT_EQ(own.originalPath("item"), "item");
        EXPECT_EQ(readFile(own.file("item")), "content");
        std::filesystem::remove(shared);
        std::filesystem::create_directory(shared);
        writeFile(m_volume / "item", "second");
        EXPECT_EQ(trashingAtTop(), "");
        EXPECT_EQ(readFile(own.file("item.2")), "second");
        chmod(shared.c_str(), 01777);
        writeFile(m_volume / "item", "third");
        EXPECT_EQ(trashingAtTop(), "");
        EXPECT_EQ(readFile(shared / user / "files/item"), "third");
    }

    std::filesystem::path m_volume = m_folder / "volume";
    bool m_canMount = false;
};

} // namespace Korvane
