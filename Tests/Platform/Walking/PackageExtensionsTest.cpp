// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PackageExtensions.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(PackageExtensionsTest, KnowsPackagesInAnyCase)
{
    for (const auto* name : { "Safari.app", "A.APP", "x.bundle", "Photos Library.photoslibrary",
             "driver.kext", "part.plugin", "Project.xcodeproj", "Disk.sparsebundle", "a.b.c.PrefPane", "\xff.app" })
        EXPECT_TRUE(hasPackageExtension(name)) << name;
}

TEST(PackageExtensionsTest, LeavesOtherFoldersAlone)
{
    for (const auto* name : { "", ".", "..", ".app", "app", "x.", "x.apps", "x.ap", "Library", "node_modules", "conf.d",
             "x.app ", "x.app.old", "x.an extension longer than any that is registered", "user.service", "Kit.framework" })
        EXPECT_FALSE(hasPackageExtension(name)) << name;
}

} // namespace
} // namespace Korvane
