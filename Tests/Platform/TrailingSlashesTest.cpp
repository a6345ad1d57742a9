// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TrailingSlashes.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(TrailingSlashesTest, TakesAwayEverySlashBehindAPath)
{
    EXPECT_EQ(withoutTrailingSlashes("/home/someone/"), "/home/someone");
    EXPECT_EQ(withoutTrailingSlashes("/home/someone///"), "/home/someone");
    EXPECT_EQ(withoutTrailingSlashes("folder/"), "folder");
}

TEST(TrailingSlashesTest, LeavesTheRootAndWhatHasNone)
{
    EXPECT_EQ(withoutTrailingSlashes("/"), "/");
    EXPECT_EQ(withoutTrailingSlashes("///"), "/");
    EXPECT_EQ(withoutTrailingSlashes(""), "");
    EXPECT_EQ(withoutTrailingSlashes("//home//someone"), "//home//someone");
    EXPECT_EQ(withoutTrailingSlashes("/home/someone/ "), "/home/someone/ ");
}

} // namespace
} // namespace Korvane
