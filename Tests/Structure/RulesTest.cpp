// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The rules judged on snippets: each must let the good through and must bite on the bad.

#include "Tests/Structure/Rules.h"

#include "Tests/Support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane::Structure {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

Complaints floors(const char* path, const std::string& text) { return checkFloors(sourceText(path, text)); }

Complaints purity(const char* path, const std::string& text) { return checkPurity(sourceText(path, text)); }

std::string linesOf(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += "    line();\n";
    }
    return text;
}

std::string functionOf(std::size_t count) { return "void run()\n{\n" + linesOf(count) + "}\n"; }

} // namespace

TEST(Floors, ArrowsRunDownwards)
{
    EXPECT_THAT(floors("App/main.cpp", "#include \"UI/Navigation.h\"\n#include \"Core/Modules.h\"\n"), IsEmpty());
    EXPECT_THAT(floors("UI/ScanViewModel.cpp", "#include \"Platform/Host.h\"\n"), IsEmpty());
    EXPECT_THAT(floors("CLI/Main.cpp", "#include \"Core/Modules.h\"\n"), IsEmpty());
    EXPECT_THAT(floors("Core/Modules.cpp", "#include \"Core/Modules.h\"\n#include \"Platform/Host.h\"\n"), IsEmpty());
    EXPECT_THAT(floors("Tests/UI/A.cpp", "#include \"App/AppState.h\"\n#include \"A.moc\"\n"), IsEmpty());
}

TEST(Floors, ArrowsUpwardsAndSidewaysAreRefused)
{
    EXPECT_THAT(floors("Platform/Host.h", "\n#include \"Core/Modules.h\"\n"),
        ElementsAre(HasSubstr("Platform/Host.h:2: arrow to a floor not below")));
    EXPECT_THAT(floors("Core/Modules.cpp", "#include \"UI/Navigation.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("Core/Modules.cpp", "#  include \"CLI/Report.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("UI/ContentView.cpp", "#include \"App/AppState.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("UI/ContentView.cpp", "#include \"CLI/Report.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("CLI/Main.cpp", "#include \"UI/Navigation.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("App/main.cpp", "#include \"CLI/Report.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("Core/Modules.cpp", "#include \"Tests/Support/TestHost.h\"\n"), SizeIs(1));
}

TEST(Floors, IncludesAreRootedAtTheProject)
{
    EXPECT_THAT(floors("UI/ScanViewModel.cpp", "#include \"ScanViewModel.h\"\n"), SizeIs(1));
    EXPECT_THAT(floors("UI/ScanViewModel.cpp", "#include \"../Core/Modules.h\"\n"), SizeIs(1));
}

TEST(Purity, CoreKnowsOnlyTheStandardLibrary)
{
    EXPECT_THAT(purity("Core/A.cpp", "#include <vector>\n#include <cstdint>\n"), IsEmpty());
    EXPECT_THAT(purity("Core/A.cpp", "#include <QString>\n"), SizeIs(1));
    EXPECT_THAT(purity("Core/A.cpp", "#include <unistd.h>\n"), SizeIs(1));
    EXPECT_THAT(purity("Core/A.h", "#include <sys/stat.h>\n#include <stdint.h>\n"), SizeIs(2));
    EXPECT_THAT(purity("Core/A.h", "#include <unicode/unistr.h>\n"), SizeIs(1));
}

TEST(Purity, PlatformHidesTheSystemInItsSources)
{
    EXPECT_THAT(purity("Platform/TrashLinux.cpp", "#include <fcntl.h>\n#include <QDir>\n"), IsEmpty());
    EXPECT_THAT(purity("Platform/Trash.h", "#include <fcntl.h>\n#include <QDir>\n"), SizeIs(2));
}

TEST(Qml, KnowsQtAndItsOwnModule)
{
    const std::string good = "pragma ComponentBehavior: Bound\nimport QtQuick\nimport Korvane.UI\n";
    EXPECT_THAT(checkQml(sourceText("UI/A.qml", good)), IsEmpty());
    EXPECT_THAT(checkQml(sourceText("UI/A.qml", "import QtQuick\n")), SizeIs(1));
    EXPECT_THAT(checkQml(sourceText("UI/A.qml", good + "import Korvane.App\n")), SizeIs(1));
    EXPECT_THAT(checkQml(sourceText("UI/A.qml", good + "import \"../Core\"\n")), SizeIs(1));
    EXPECT_THAT(checkQml(sourceText("Core/A.qml", good)), SizeIs(1));
}

TEST(PlatformSeam, ObjectiveCAndTheSystemStayBehindIt)
{
    const auto seam = [](const char* path, const char* text) { return checkPlatformSeam(sourceText(path, text)); };
    EXPECT_THAT(seam("Platform/TrashMacOS.mm", "#import <Foundation/Foundation.h>\n@autoreleasepool {\n"), IsEmpty());
    EXPECT_THAT(seam("Platform/Trash.mm", ""), SizeIs(1));
    EXPECT_THAT(seam("Platform/Trash.h", "#import <Foundation/Foundation.h>\n"), SizeIs(1));
    EXPECT_THAT(seam("Platform/TrashMacOS.cpp", "    @autoreleasepool {\n"), SizeIs(1));
    EXPECT_THAT(seam("Core/A.cpp", "#ifdef __APPLE__\n#elif defined(Q_OS_LINUX)\n"), SizeIs(2));
    EXPECT_THAT(seam("Tests/Platform/A.cpp", "#ifdef __APPLE__\n"), IsEmpty()) << "a test may differ by system";
    EXPECT_THAT(seam("Core/A.h", "#pragma once\n#include <vector>\n"), IsEmpty());
    EXPECT_THAT(seam("Platform/AMacOS.cpp", "    ::sigfillset(&all);\n    sigemptyset(&none);\n"), SizeIs(1));
    EXPECT_THAT(seam("Platform/ALinux.cpp", "    ::sigfillset(&all);\n"), IsEmpty());
}

TEST(Removing, IsAskedOfTheFileManager)
{
    const auto removing = [](const char* path, const char* text) { return checkRemoving(sourceText(path, text)); };
    EXPECT_THAT(removing("Platform/RemovalLinux.cpp", "::unlinkat(fd, name, 0);\n"), IsEmpty());
    EXPECT_THAT(removing("Core/A.cpp", "host.fileManager.removeItem(path);\nitems.remove(id);\n"), IsEmpty());
    EXPECT_THAT(removing("Core/A.cpp", "std::filesystem::remove_all(path);\n"), SizeIs(1));
    EXPECT_THAT(removing("Core/A.cpp", "std::filesystem::remove(path);\n"), SizeIs(1));
    EXPECT_THAT(removing("UI/A.cpp", "QFile::moveToTrash(path);\n"), SizeIs(1));
    EXPECT_THAT(removing("App/A.cpp", "dir.removeRecursively();\n"), SizeIs(1));
    EXPECT_THAT(removing("CLI/A.cpp", "unlink(path);\n"), SizeIs(1));
}

TEST(Licence, BothLinesAreNeeded)
{
    // Put together at run time, so that this file itself carries one statement only.
    const std::string holder = std::string("// SPDX-FileCopyright") + "Text: 2026 The Korvane authors\n";
    const std::string licence = std::string("// SPDX-License-") + "Identifier: GPL-3.0-or-later\n";
    EXPECT_THAT(checkLicence(sourceText("Core/A.h", holder + licence)), IsEmpty());
    EXPECT_THAT(checkLicence(sourceText("Core/A.h", holder)), SizeIs(1));
    EXPECT_THAT(checkLicence(sourceText("Core/A.h", licence)), SizeIs(1));
    EXPECT_THAT(checkLicence(sourceText("Core/A.h", "")), SizeIs(1));
    EXPECT_THAT(checkLicence(sourceText("Core/A.h", "\n\n\n\n\n" + holder + licence)), SizeIs(1));
}

TEST(Lengths, EachKindHasItsLimit)
{
    const auto lengths
        = [](const char* path, std::size_t count) { return checkLengths(sourceText(path, linesOf(count))); };
    EXPECT_THAT(lengths("Core/A.cpp", 300), IsEmpty());
    EXPECT_THAT(lengths("Core/A.cpp", 301), SizeIs(1));
    EXPECT_THAT(lengths("Core/A.h", 120), IsEmpty());
    EXPECT_THAT(lengths("Core/A.h", 121), SizeIs(1));
    EXPECT_THAT(lengths("UI/A.qml", 200), IsEmpty());
    EXPECT_THAT(lengths("UI/A.qml", 201), SizeIs(1));
}

TEST(Lengths, AFunctionFitsOnAScreen)
{
    EXPECT_THAT(checkLengths(sourceText("Core/A.cpp", functionOf(40))), IsEmpty());
    EXPECT_THAT(checkLengths(sourceText("Core/A.cpp", functionOf(3) + functionOf(41))),
        ElementsAre(HasSubstr("Core/A.cpp:8: a function of 41 lines")));
}

TEST(Lengths, TheRowsOfATableDoNotCount)
{
    std::string table = "void run()\n{\n    static const std::set<int> names {\n";
    for (int i = 0; i < 60; ++i) {
        table += "        \"name\",\n        // a remark\n        { 1, 2 },\n";
    }
    EXPECT_THAT(checkLengths(sourceText("Core/A.cpp", table + "    };\n}\n")), IsEmpty());
    EXPECT_THAT(checkLengths(sourceText("Core/A.cpp", table + linesOf(39) + "    };\n}\n")), SizeIs(1));
}

TEST(Project, IsReadFromDisk)
{
    TemporaryFolder folder;
    std::filesystem::create_directories(folder.path() / "Core" / "Deep");
    std::ofstream(folder.path() / "Core" / "Deep" / "Bad.cpp") << "#include <QString>\n";
    std::ofstream(folder.path() / "Core" / "picture.png") << "#include <QString>\n";
    const std::vector<SourceText> files = readProject(folder.path());
    ASSERT_THAT(files, SizeIs(1));
    EXPECT_EQ(files.front().path, std::filesystem::path("Core/Deep/Bad.cpp"));
    EXPECT_THAT(check(files.front()), SizeIs(2)) << "no licence, and Qt in Core";
}

} // namespace Korvane::Structure
