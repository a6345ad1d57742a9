// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestTrash.h"

namespace Korvane {

/// What an ordinary item is to become.
enum class Removal { MoveToTrash, Delete };

/// Cleaning in a home that holds a file which nothing may touch.
class CleanerFixture : public ScanFixture {
protected:
    CleanerFixture()
        : sentinel(home() / "Documents/keep.txt")
        , files(host().files)
    {
    }

    ~CleanerFixture() override { EXPECT_EQ(sentinel.difference(), ""); }

    Cleaner::Result clean(const std::vector<ScanItem>& items, Removal removal)
    {
        return Cleaner::clean(items, removal == Removal::MoveToTrash, files);
    }

    static ScanItem item(const std::filesystem::path& url, std::int64_t size)
    {
        return { url, std::nullopt, "Category", size, true };
    }

    std::filesystem::path makeFile(const std::filesystem::path& relative)
    {
        writeFile(home() / relative, std::string_view("content"));
        return home() / relative;
    }

    std::filesystem::path trashed(const char* name) { return testTrash(host().environment) / name; }

    Sentinel sentinel;
    ForwardingFileManager files;
};

} // namespace Korvane
