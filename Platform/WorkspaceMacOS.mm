// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Workspace.h"

#include "Platform/UserActionScope.h"

#import <AppKit/AppKit.h>

namespace Korvane {

namespace {

class MacWorkspace final : public Workspace {
public:
    /// NSWorkspace documents this property as safe to read from any thread and returned atomically, so that a scan need
    /// not wait for the main thread, which may at that moment be waiting for the scan.
    std::vector<RunningApplication> runningApplications() const override
    {
        @autoreleasepool {
            std::vector<RunningApplication> running;
            for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
                const char* identifier = application.bundleIdentifier.UTF8String;
                running.push_back({ identifier != nullptr ? std::optional<std::string>(identifier) : std::nullopt });
            }
            return running;
        }
    }

    bool open(const std::string& url) const override
    {
        const UserActionScope action;
        @autoreleasepool {
            NSString* text = [NSString stringWithUTF8String:url.c_str()];
            NSURL* address = text != nil ? [NSURL URLWithString:text] : nil;
            return address != nil && [NSWorkspace.sharedWorkspace openURL:address];
        }
    }

    bool showInFileManager(const std::filesystem::path& path) const override
    {
        const UserActionScope action;
        @autoreleasepool {
            if (!path.is_absolute())
                return false;
            NSURL* url = [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:NO relativeToURL:nil];
            if (![url checkResourceIsReachableAndReturnError:nil])
                return false;
            [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ url ]];
            return true;
        }
    }
};

} // namespace

std::shared_ptr<Workspace> makeWorkspace(const Environment&)
{
    return std::make_shared<MacWorkspace>();
}

} // namespace Korvane
