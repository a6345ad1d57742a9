// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PackageExtensions.h"

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>

#import <Foundation/Foundation.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

namespace Korvane {

namespace {

bool isDeclaredAsPackage(const std::string& extension)
{
    @autoreleasepool {
        NSString* text = [[NSString alloc] initWithBytes:extension.data()
                                                  length:extension.size()
                                                encoding:NSUTF8StringEncoding];
        if (text == nil)
            return false;
        UTType* type = [UTType typeWithFilenameExtension:text conformingToType:UTTypeDirectory];
        return type != nil && [type conformsToType:UTTypePackage];
    }
}

} // namespace

bool hasPackageExtension(std::string_view folderName)
{
    const auto dot = folderName.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == folderName.size())
        return false;
    const auto extension = folderName.substr(dot + 1);

    // The system takes its time to answer, and folders of a kind come in thousands.
    static std::mutex mutex;
    static std::map<std::string, bool, std::less<>> answers;
    const std::lock_guard lock(mutex);
    const auto known = answers.find(extension);
    if (known != answers.end())
        return known->second;
    std::string asked(extension);
    const bool answer = isDeclaredAsPackage(asked);
    constexpr std::size_t mostRemembered = 4096;
    if (answers.size() < mostRemembered)
        answers.emplace(std::move(asked), answer);
    return answer;
}

} // namespace Korvane
