// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Preferences/FileUserDefaults.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

namespace Korvane {

/// Preferences in a file of the test's own, whose folder is not there yet.
class UserDefaultsTest : public testing::Test {
protected:
    std::shared_ptr<UserDefaults> open() const { return makeFileUserDefaults(file); }

    TemporaryFolder folder;
    std::filesystem::path file = folder / "config/korvane/korvane.conf";
};

} // namespace Korvane
