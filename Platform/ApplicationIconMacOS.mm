// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ApplicationIcon.h"

#include <algorithm>

#import <AppKit/AppKit.h>

namespace Korvane {

namespace {

NSData* pictureOf(NSImage* icon, NSInteger side)
{
    NSBitmapImageRep* const bitmap = [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                                             pixelsWide:side
                                                                             pixelsHigh:side
                                                                          bitsPerSample:8
                                                                        samplesPerPixel:4
                                                                               hasAlpha:YES
                                                                               isPlanar:NO
                                                                         colorSpaceName:NSDeviceRGBColorSpace
                                                                            bytesPerRow:0
                                                                           bitsPerPixel:0];
    if (bitmap == nil)
        return nil;
    NSGraphicsContext* const context = [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap];
    if (context == nil)
        return nil;
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = context;
    [icon drawInRect:NSMakeRect(0, 0, static_cast<CGFloat>(side), static_cast<CGFloat>(side))
            fromRect:NSZeroRect
           operation:NSCompositingOperationCopy
            fraction:1.0];
    [NSGraphicsContext restoreGraphicsState];
    return [bitmap representationUsingType:NSBitmapImageFileTypePNG properties:@{}];
}

} // namespace

std::optional<std::string> applicationIcon(const std::filesystem::path& application, int pixels)
{
    @autoreleasepool {
        const auto& bytes = application.native();
        NSString* const path = [NSFileManager.defaultManager stringWithFileSystemRepresentation:bytes.c_str()
                                                                                        length:bytes.size()];
        if (path == nil || ![NSFileManager.defaultManager fileExistsAtPath:path])
            return std::nullopt;
        constexpr int largest = 1024;
        NSData* const picture
            = pictureOf([NSWorkspace.sharedWorkspace iconForFile:path], std::clamp(pixels, 1, largest));
        if (picture == nil)
            return std::nullopt;
        return std::string(static_cast<const char*>(picture.bytes), picture.length);
    }
}

} // namespace Korvane
