// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/SystemErrorText.h"

#import <Foundation/Foundation.h>

namespace Korvane {

std::string systemErrorText(int error)
{
    @autoreleasepool {
        NSError* const described = [NSError errorWithDomain:NSPOSIXErrorDomain code:error userInfo:nil];
        const char* const text = described.localizedDescription.UTF8String;
        return text != nullptr ? text : "";
    }
}

} // namespace Korvane
