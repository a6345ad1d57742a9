// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/PrivateMounts.h"
#include "Tests/Support/PrivateRoot.h"

namespace Korvane {
namespace {

/// What only this host has: names of any bytes, and mounts that a test can make.
using RemovalLinuxTest = FileManagerFixture;

TEST_F(RemovalLinuxTest, AVolumeMountedBelowTheRootIsRefused)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "This machine permits no private mounts, and no test aims at its real ones.";
    std::filesystem::create_directory(m_folder / "volume");
    const auto answer = runInPrivateRoot(m_folder.path(), [] {
        mountMemory("/volume");
        writeFile("/volume/kept", "x");
        const auto files = makeFileManager(Environment::inFolder("/"));
        const auto refusal = failureOf([&] { files->removeItem("/volume"); });
        return refusal + failureOf([&] { files->trashItem("/volume"); }) + readFile("/volume/kept");
    });
    ASSERT_TRUE(answer.has_value());
    const std::string refusal = "“/volume” is where a volume is mounted, and is never removed.";
    EXPECT_EQ(*answer, refusal + refusal + "x");
}

TEST_F(RemovalLinuxTest, NamesOfAnyBytesAndOf255Bytes)
{
    std::filesystem::create_directories(home("item"));
    for (int byte = 1; byte < 256; ++byte) {
        if (byte == '/')
            continue;
        const std::string name = std::string("b") + static_cast<char>(byte);
        writeFile(home("item") / name / (name + "-"), "x");
        writeFile(home("item") / std::string(255, static_cast<char>(byte == '.' ? 'd' : byte)), "x");
    }
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

} // namespace
} // namespace Korvane
