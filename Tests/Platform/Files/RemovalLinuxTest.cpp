// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"

namespace Korvane {
namespace {

/// What only this host has: names of any bytes, and places that are known to be mounted or shared.
using RemovalLinuxTest = FileManagerFixture;

// Of the system's own places only the one in which nothing can be removed anyway, should the refusal ever break.
TEST_F(RemovalLinuxTest, TheSystemsMountPointsAreRefused)
{
    EXPECT_NE(removing("/proc").find("never removed"), std::string::npos);
    EXPECT_NE(trashing("/proc").find("never removed"), std::string::npos);
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
