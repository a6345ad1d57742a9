// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Processes/HelperRuns.h"

#include <csignal>

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(ChildProcessLinux, LeavesNoOrphanWhenThisProgramDies)
{
    EXPECT_TRUE(isSleeperGoneAfter("stubborn", [] { ::raise(SIGKILL); }));
}

} // namespace
} // namespace Korvane
