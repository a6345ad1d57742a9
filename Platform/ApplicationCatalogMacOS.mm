// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ApplicationCatalog.h"

#include "Platform/FileError.h"

#import <Foundation/Foundation.h>

namespace Korvane {

namespace {

/// Everything that is installed here is a bundle in an application folder.
class MacApplicationCatalog final : public ApplicationCatalog {
public:
    std::filesystem::path mainBundle() const override
    {
        @autoreleasepool {
            // A program that lies in no bundle is told the folder that it lies in.
            NSURL* const url = NSBundle.mainBundle.bundleURL.URLByResolvingSymlinksInPath;
            const char* const path = [url.pathExtension isEqualToString:@"app"] ? url.fileSystemRepresentation : nullptr;
            return path != nullptr ? std::filesystem::path(path) : std::filesystem::path();
        }
    }

    std::vector<HostApplication> additionalApplications(const Cancellation& cancellation) const override
    {
        cancellation.throwIfCancelled();
        return {};
    }

    void uninstall(const HostApplication& application, const Cancellation&) const override
    {
        throw FileError(application.path, std::make_error_code(std::errc::not_supported));
    }
};

} // namespace

std::shared_ptr<ApplicationCatalog> makeApplicationCatalog(
    const Environment&, const std::vector<std::filesystem::path>&)
{
    return std::make_shared<MacApplicationCatalog>();
}

} // namespace Korvane
