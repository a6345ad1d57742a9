// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Core/Devices/MediaFixture.h"

namespace Korvane {

/// Three photos on a device that is a folder.
class MediaDeletionFixture : public MediaFixture {
protected:
    MediaDeletionFixture()
    {
        for (const char* path : { "/DCIM/100APPLE/IMG_1.JPG", "/DCIM/100APPLE/IMG_2.JPG", "/DCIM/101APPLE/IMG_3.JPG" })
            tool().add(path);
    }

    const std::string first = "/DCIM/100APPLE/IMG_1.JPG";
    const std::string second = "/DCIM/100APPLE/IMG_2.JPG";
    const std::string third = "/DCIM/101APPLE/IMG_3.JPG";
};

} // namespace Korvane
