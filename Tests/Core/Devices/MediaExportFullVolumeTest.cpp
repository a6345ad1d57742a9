// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/MediaFixture.h"
#include "Tests/Support/PrivateMounts.h"

namespace Korvane {

namespace {

class MediaExportFullVolumeTest : public MediaFixture {
protected:
    MediaExportFullVolumeTest()
    {
        std::filesystem::create_directory(downloads());
        tool().add(small, std::string(4'000, 's'));
        tool().add(large, std::string(1'000'000, 'l'));
    }

    const std::string small = "/DCIM/100APPLE/IMG_1.MOV";
    const std::string large = "/DCIM/100APPLE/IMG_2.MOV";
};

} // namespace

TEST_F(MediaExportFullVolumeTest, FileThatFillsItsVolumeHasNotArrived)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        const auto answer = runWithPrivateMounts([&] {
            mountMemory(downloads(), "size=64k");
            const auto whole = exportFailure(small, downloads());
            return whole + "|" + exportFailure(large, downloads()) + "|" + readFile(downloads() / "IMG_1.MOV");
        });
        // There is no room for what the Trash has to write down either.
        const auto begin = "|Export failed for IMG_2.MOV; what lies there now could not be moved to the Trash: ";
        EXPECT_TRUE(answer.starts_with(begin)) << style << ": " << answer.substr(0, 200);
        EXPECT_TRUE(answer.ends_with("|" + std::string(4'000, 's'))) << style;
    }
}

} // namespace Korvane
