// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserDefaults.h"

#include "Tests/Platform/UserDefaultsFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <sys/stat.h>

namespace Korvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(UserDefaultsTest, GivesTheDefaultForWhatIsAbsent)
{
    const auto defaults = open();
    EXPECT_TRUE(defaults->boolForKey("flag", true));
    EXPECT_FALSE(defaults->boolForKey("flag", false));
    EXPECT_EQ(defaults->integerForKey("count", -7), -7);
    EXPECT_EQ(defaults->doubleForKey("date", 0.0), 0.0);
    EXPECT_FALSE(std::filesystem::exists(file.parent_path())) << "reading makes nothing";
}

TEST_F(UserDefaultsTest, KeepsValuesForTheNextTime)
{
    EXPECT_TRUE(open()->setBool("confirmBeforeCleaning", false));
    EXPECT_TRUE(open()->setInteger("lastCleanedBytes", std::numeric_limits<std::int64_t>::min()));
    EXPECT_TRUE(open()->setInteger("most", std::numeric_limits<std::int64_t>::max()));
    const auto defaults = open();
    EXPECT_FALSE(defaults->boolForKey("confirmBeforeCleaning", true));
    EXPECT_EQ(defaults->integerForKey("lastCleanedBytes", 0), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(defaults->integerForKey("most", 0), std::numeric_limits<std::int64_t>::max());
}

TEST_F(UserDefaultsTest, GivesEveryDoubleBackExactly)
{
    for (const double value : { 0.1, -0.0, 1.0 / 3.0, 1795257117.123456789, 5e-324, 1.7976931348623157e308 }) {
        EXPECT_TRUE(open()->setDouble("lastCleanedDate", value));
        const double back = open()->doubleForKey("lastCleanedDate", 42);
        EXPECT_EQ(back, value);
        EXPECT_EQ(std::signbit(back), std::signbit(value));
    }
}

TEST_F(UserDefaultsTest, TakesAValueOfAnotherTypeAsAbsent)
{
    writeFile(
        file, "[General]\nflag=banana\nnumber=12 apples\ndate=yesterday\nwhole=1.5\nyes=1\nbig=9223372036854775808\n");
    const auto defaults = open();
    EXPECT_TRUE(defaults->boolForKey("flag", true));
    EXPECT_FALSE(defaults->boolForKey("flag", false));
    EXPECT_FALSE(defaults->boolForKey("yes", false));
    EXPECT_EQ(defaults->integerForKey("number", 3), 3);
    EXPECT_EQ(defaults->integerForKey("whole", 3), 3);
    EXPECT_EQ(defaults->integerForKey("big", 3), 3);
    EXPECT_EQ(defaults->doubleForKey("date", 2.5), 2.5);
}

TEST_F(UserDefaultsTest, WritesAPlainFileForTheUserAlone)
{
    EXPECT_TRUE(open()->setBool("b", true));
    EXPECT_TRUE(open()->setInteger("a", 5));
    EXPECT_EQ(readFile(file), "[General]\na=5\nb=true\n");
    struct stat status { };
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    ASSERT_EQ(::stat(file.parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    const auto entries = std::filesystem::directory_iterator(file.parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1) << "nothing is left beside the file";
}

TEST_F(UserDefaultsTest, KeepsWhatItDoesNotKnow)
{
    writeFile(file, "; a remark\n[General]\r\nfuture=keep = this\r\n\nflag=true");
    EXPECT_TRUE(open()->setBool("flag", false));
    EXPECT_EQ(readFile(file), "[General]\nflag=false\nfuture=keep = this\n");
}

TEST_F(UserDefaultsTest, RefusesKeysThatWouldNotComeBack)
{
    const auto defaults = open();
    for (const auto* key : { "", "a=b", "a\nb", "#a", ";a", "[a", "\xFF" })
        EXPECT_FALSE(defaults->setBool(key, true)) << key;
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(UserDefaultsTest, TellsObserversAtOnceAndOnlyOfChanges)
{
    const auto defaults = open();
    std::vector<std::string> told;
    auto observation = defaults->observe([&](std::string_view key) { told.emplace_back(key); });
    defaults->setBool("flag", true);
    EXPECT_THAT(told, ElementsAre("flag"));
    defaults->setBool("flag", true);
    EXPECT_THAT(told, ElementsAre("flag"));
    defaults->setBool("flag", false);
    defaults->setInteger("count", 1);
    EXPECT_THAT(told, ElementsAre("flag", "flag", "count"));
    observation.reset();
    defaults->setInteger("count", 2);
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(UserDefaultsTest, LetsObserversEndObservationsAndReadTheNewValueWhileTold)
{
    const auto defaults = open();
    std::unique_ptr<UserDefaults::Observation> first, second;
    int calls = 0;
    const auto end = [&](std::string_view key) {
        ++calls;
        EXPECT_EQ(defaults->integerForKey(key, 0), 9);
        first.reset();
        second.reset();
    };
    first = defaults->observe(end);
    second = defaults->observe(end);
    defaults->setInteger("count", 9);
    EXPECT_EQ(calls, 1);
}

TEST_F(UserDefaultsTest, ObservationsMayOutliveThePreferences)
{
    auto defaults = open();
    const auto observation = defaults->observe([](std::string_view) {});
    defaults.reset();
    EXPECT_NE(observation, nullptr);
}

/// Lets the event loop run until the condition holds or five seconds are over.
template <typename Condition> bool eventually(Condition condition)
{
    QDeadlineTimer deadline(5000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    return condition();
}

class UserDefaultsWithEventLoop : public UserDefaultsTest {
protected:
    int count = 1;
    std::string name = "test";
    std::array<char*, 2> arguments{ name.data(), nullptr };
    QCoreApplication application{ count, arguments.data() };
    std::vector<std::string> told;
};

TEST_F(UserDefaultsWithEventLoop, TellsOfWhatAnotherProcessChanged)
{
    giveToOrdinaryUser(folder.path());
    const auto defaults = open();
    const auto observation = defaults->observe([&](std::string_view key) { told.emplace_back(key); });
    for (const bool value : { false, true, false }) {
        ASSERT_EQ(::system(("printf 'flag=" + std::string(value ? "true" : "false") + "\\n' > '" + file.native()
                      + ".other' && mv '" + file.native() + ".other' '" + file.native() + "'")
                               .c_str()),
            0);
        EXPECT_TRUE(eventually([&] { return defaults->boolForKey("flag", !value) == value; })) << value;
    }
    EXPECT_THAT(told, ElementsAre("flag", "flag", "flag"));
}

TEST_F(UserDefaultsWithEventLoop, TellsOfAFileWrittenOverInItsPlace)
{
    ASSERT_TRUE(open()->setInteger("count", 1));
    const auto defaults = open();
    const auto observation = defaults->observe([&](std::string_view key) { told.emplace_back(key); });
    writeFile(file, "count=2\n");
    EXPECT_TRUE(eventually([&] { return defaults->integerForKey("count", 0) == 2; }));
    EXPECT_EQ(told.back(), "count");
}

TEST_F(UserDefaultsWithEventLoop, TellsThatAValueIsGone)
{
    ASSERT_TRUE(open()->setInteger("count", 1));
    const auto defaults = open();
    const auto observation = defaults->observe([&](std::string_view key) { told.emplace_back(key); });
    std::filesystem::remove(file);
    EXPECT_TRUE(eventually([&] { return defaults->integerForKey("count", 0) == 0; }));
    EXPECT_THAT(told, ElementsAre("count"));
}

TEST_F(UserDefaultsWithEventLoop, DoesNotTellTwiceOfItsOwnChange)
{
    const auto defaults = open();
    const auto observation = defaults->observe([&](std::string_view key) { told.emplace_back(key); });
    defaults->setInteger("count", 1);
    eventually([deadline = QDeadlineTimer(300)] { return deadline.hasExpired(); });
    EXPECT_THAT(told, ElementsAre("count"));
}

#ifndef __APPLE__
TEST(UserDefaults, LieInTheConfigurationFolderOfTheEnvironment)
{
    const TemporaryFolder folder;
    auto environment = Environment::inFolder(folder.path());
    EXPECT_TRUE(makeUserDefaults(environment)->setBool("flag", true));
    EXPECT_THAT(readFile(folder / "home/.config/korvane/korvane.conf"), HasSubstr("flag=true\n"));
    environment.xdgConfigHome = folder / "odd \xFF name";
    EXPECT_TRUE(makeUserDefaults(environment)->setBool("flag", true));
    EXPECT_THAT(readFile(folder / "odd \xFF name/korvane/korvane.conf"), HasSubstr("flag=true\n"));
}
#endif

} // namespace
} // namespace Korvane
