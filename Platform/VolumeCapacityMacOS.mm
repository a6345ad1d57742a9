// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/VolumeCapacity.h"

#import <Foundation/Foundation.h>

namespace Korvane {

std::optional<VolumeCapacity> volumeCapacity(const std::filesystem::path& path)
{
    if (path.empty())
        return std::nullopt;
    @autoreleasepool {
        NSURL* url = [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:YES relativeToURL:nil];
        NSArray<NSURLResourceKey>* keys =
            @[ NSURLVolumeTotalCapacityKey, NSURLVolumeAvailableCapacityForImportantUsageKey ];
        NSDictionary<NSURLResourceKey, id>* values = [url resourceValuesForKeys:keys error:nil];
        if (values == nil)
            return std::nullopt;
        // A size that the volume does not tell is 0, and the other one stands.
        NSNumber* total = values[NSURLVolumeTotalCapacityKey];
        NSNumber* available = values[NSURLVolumeAvailableCapacityForImportantUsageKey];
        return VolumeCapacity { total.longLongValue, available.longLongValue };
    }
}

} // namespace Korvane
