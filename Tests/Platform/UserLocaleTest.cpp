// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserLocale.h"

#include "Tests/Support/EnvironmentVariable.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace Korvane {
namespace {

// The system is asked for its locale once in a program's life: each case is a program of its own.
struct Case {
    const char* user;
    const char* spoken;
    const char* name;
};

class UserLocale : public testing::TestWithParam<Case> { };

TEST_P(UserLocale, IsInTheLanguageThatTheProgramSpeaks)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const EnvironmentVariable all("LC_ALL", GetParam().user);
    EXPECT_EXIT(
        {
            setSpokenLanguage(GetParam().spoken);
            std::fputs(('<' + userLocaleName() + '>').c_str(), stderr);
            std::exit(0);
        },
        testing::ExitedWithCode(0), std::string("<") + GetParam().name + '>');
}

INSTANTIATE_TEST_SUITE_P(Cases, UserLocale,
    testing::Values(Case{ "de_AT.UTF-8", "de", "de_AT" }, Case{ "de_AT.UTF-8", "", "de_AT" },
        Case{ "en_US.UTF-8", "de", "de_US" }, Case{ "pt_BR.UTF-8", "en", "en_BR" },
        Case{ "en_GB.UTF-8", "en", "en_GB" }, Case{ "zh_CN.UTF-8", "zh_CN", "zh_CN" },
        Case{ "fr_FR.UTF-8", "zh_CN", "zh_FR" }, Case{ "ru_RU.UTF-8", "en", "en_RU" }));

} // namespace
} // namespace Korvane
