// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/Program.h"
#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Support/AfcStandIn.h"
#include "Tests/Support/TestHost.h"

#include <string>
#include <vector>

namespace Korvane {

/// The camera roll of a device that is a folder.
class ProgramMediaFixture : public ProgramFixture {
protected:
    ProgramMediaFixture()
    {
        tool.add(first, "one");
        tool.add(second, "two");
        std::filesystem::create_directory(downloads());
    }

    ExitStatus runHere(const std::vector<std::string>& arguments, const Cancellation& cancellation = {})
    {
        Program program(m_test.host, cancellation);
        return ProgramFixture::runHere(program, arguments);
    }

    /// Runs a command that is cancelled once the tool hangs.
    ExitStatus runCancelled(const std::vector<std::string>& arguments)
    {
        return ProgramFixture::runCancelled(m_test.host, arguments, tool.rules.begun);
    }

    std::filesystem::path downloads() const { return home() / "Downloads"; }

    const std::string first = "/DCIM/100APPLE/IMG_1.JPG";
    const std::string second = "/DCIM/101APPLE/IMG_2.JPG";
    AfcStandIn tool{ folder.path() };

private:
    TestHost m_test = makeTestHost(folder);
};

} // namespace Korvane
