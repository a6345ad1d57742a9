// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserLocale.h"

#import <Foundation/Foundation.h>

namespace Korvane {

std::string userLocaleName()
{
    @autoreleasepool {
        NSString* name = NSLocale.currentLocale.localeIdentifier;
        return name.UTF8String != nullptr ? std::string(name.UTF8String) : std::string("en");
    }
}

// The locale above is in a language of the bundle already.
void setSpokenLanguage(const std::string&) {}

} // namespace Korvane
