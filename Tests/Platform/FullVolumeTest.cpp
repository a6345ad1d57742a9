// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FullVolume.h"

#include "Tests/Support/PrivateMounts.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

std::string answerFor(const std::filesystem::path& path) { return isVolumeFull(path) ? "full " : "room "; }

TEST(FullVolume, IsOneThatTakesNoByteMore)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    const TemporaryFolder folder;
    const auto answer = runWithPrivateMounts([&] {
        mountMemory(folder.path(), "size=64k");
        auto text = answerFor(folder.path());
        writeFile(folder / "small", std::string(4'000, 's'));
        text += answerFor(folder / "small");
        try {
            writeFile(folder / "large", std::string(1'000'000, 'l'));
        } catch (const std::exception&) {
            text += "refused ";
        }
        text += answerFor(folder.path()) + answerFor(folder / "large");
        std::filesystem::remove(folder / "large");
        return text + answerFor(folder.path());
    });
    EXPECT_EQ(answer, "room room refused full full room ");
}

TEST(FullVolume, IsNoneThatDoesNotTell)
{
    EXPECT_FALSE(isVolumeFull(TemporaryFolder().path()));
    EXPECT_FALSE(isVolumeFull("/proc"));
    EXPECT_FALSE(isVolumeFull("/nonexistent/anywhere"));
    EXPECT_FALSE(isVolumeFull(""));
    EXPECT_FALSE(isVolumeFull(std::string(10'000, 'x')));
}

} // namespace
} // namespace Korvane
