// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Core/Devices/MediaFixture.h"

namespace Korvane {

/// A film on a device that is a folder, and the folder of downloads that it is copied to.
class MediaExportFixture : public MediaFixture {
protected:
    MediaExportFixture()
    {
        tool().add(path, photo);
        std::filesystem::create_directory(downloads());
    }

    void expectFailure(const std::string& what, const std::filesystem::path& directory)
    {
        EXPECT_EQ(exportFailure(what, directory), "Export failed for " + file(what).name);
    }
    /// A copy that fails and leaves nothing.
    void expectNothingLeft(const std::string& when)
    {
        EXPECT_EQ(exportFailure(path, downloads()), "Export failed for IMG_1.MOV") << when;
        EXPECT_TRUE(std::filesystem::is_empty(downloads())) << when;
    }

    const std::string path = "/DCIM/100APPLE/IMG_1.MOV";
    const std::string photo = std::string(100'000, 'm');
};

} // namespace Korvane
