// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgentRemoval.h"
#include "Core/Maintenance/LaunchAgentsScanner.h"
#include "Core/Maintenance/MaintenanceRunner.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/FileAppears.h"
#include "Tests/Support/StandInProgram.h"
#include "Tests/Support/TestProcessRunner.h"

#include <future>
#include <optional>

namespace Korvane {

/// A machine of a test's own, whose programs are stand-ins.
class MaintenanceFixture : public ScanFixture {
protected:
    using Call = std::vector<std::string>;

    std::filesystem::path program(const std::string& name) const { return folder() / "bin" / name; }
    std::filesystem::path agentsFolder() const { return home() / "Library/LaunchAgents"; }
    std::filesystem::path unitsFolder() const { return home() / ".config/systemd/user"; }

    /// From now on no program is started, but written down.
    TestProcessRunner& recordRuns()
    {
        auto runner = std::make_shared<TestProcessRunner>();
        host().processes = runner;
        return *runner;
    }

    /// What a failed task says; nothing when it is done.
    std::optional<std::string> failure(MaintenanceTask task, const Cancellation& cancellation = {})
    {
        try {
            MaintenanceRunner::run(task, host(), cancellation);
            return std::nullopt;
        } catch (const MaintenanceRunner::RunError& error) {
            return error.what();
        }
    }

    /// What a removal says that is cancelled once its service manager has made the file "begun".
    std::optional<std::string> removalThatIsCancelled(const LaunchAgent& agent)
    {
        const Cancellation cancellation;
        auto removal = std::async(std::launch::async, [&] { return removeLaunchAgent(agent, host(), cancellation); });
        EXPECT_TRUE(appears(folder() / "begun"));
        cancellation.cancel();
        return removal.get();
    }

    std::vector<LaunchAgent> scanAgents() { return LaunchAgentsScanner().scan(host()); }
    std::vector<std::string> labels()
    {
        std::vector<std::string> found;
        for (const auto& agent : scanAgents())
            found.push_back(agent.label);
        return found;
    }
    /// The one item that a scan finds at this place.
    LaunchAgent agentAt(const std::filesystem::path& url)
    {
        for (auto& agent : scanAgents()) {
            if (agent.url == url)
                return agent;
        }
        ADD_FAILURE() << url << " was not found";
        return LaunchAgent(url, "", std::nullopt, LaunchAgent::Domain::SystemDaemons);
    }

    /// A property list of these members, which go into it as they stand.
    static std::string list(const std::string& members)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + members
            + "</dict></plist>\n";
    }
    static std::string labelled(const std::string& label)
    {
        return list("<key>Label</key><string>" + label + "</string>");
    }

    /// Makes a unit of the user's own and enables it; where it lies.
    std::filesystem::path makeUnit(const std::string& name, const std::string& text = "[Service]\nExecStart=/bin/x\n")
    {
        writeFile(unitsFolder() / name, text);
        std::filesystem::create_directories(unitsFolder() / "default.target.wants");
        std::filesystem::create_symlink(unitsFolder() / name, unitsFolder() / "default.target.wants" / name);
        return unitsFolder() / name;
    }
};

} // namespace Korvane
