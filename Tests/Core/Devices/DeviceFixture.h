// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSDeviceManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/FileAppears.h"
#include "Tests/Support/StandInProgram.h"
#include "Tests/Support/TestProcessRunner.h"

#include <functional>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace Korvane {

/// A machine of a test's own, whose tools for devices are stand-ins.
class DeviceFixture : public ScanFixture {
protected:
    using Call = std::vector<std::string>;
    using Kind = IOSDeviceManager::DetectionResult::Kind;

    /// The folders of tools in their order.
    std::filesystem::path firstFolder() const { return folder() / "homebrew/bin"; }
    std::filesystem::path secondFolder() const { return folder() / "local/bin"; }
    std::filesystem::path tool(const std::string& name) const { return firstFolder() / name; }

    void writeTool(const std::string& name, const std::string& script) const { writeProgram(tool(name), script); }
    /// A tool that prints this, whatever it is asked.
    void writePrinting(const std::string& name, const std::string& output) const
    {
        writeFile(folder() / (name + ".output"), output);
        writeTool(name, "exec cat '" + (folder() / (name + ".output")).native() + "'");
    }
    /// A tool that makes the file "begun" and then never ends.
    void writeHanging(const std::string& name) const
    {
        writeTool(name,
            "echo $$ > '" + (folder() / "begun.new").native() + "'; mv '" + (folder() / "begun.new").native() + "' '"
                + (folder() / "begun").native() + "'; exec sleep 600");
    }

    /// From now on no program is started, but written down, and answers as `print` says: its standard output.
    TestProcessRunner& recordRuns(std::function<std::string(const ChildProcess&)> print = {})
    {
        auto runner = std::make_shared<TestProcessRunner>();
        runner->answer = [print = std::move(print)](const ChildProcess& process, const Cancellation&) {
            auto result = TestProcessRunner::exited(0);
            result.output.text = print ? print(process) : std::string();
            return result;
        };
        host().processes = runner;
        return *runner;
    }

    IOSDeviceManager::DetectionResult detect(const Cancellation& cancellation = {})
    {
        return IOSDeviceManager::detect(host(), cancellation);
    }
    std::vector<std::string> udids()
    {
        std::vector<std::string> found;
        for (const auto& device : detect().devices)
            found.push_back(device.udid);
        return found;
    }
    /// What is read of a device whose tool prints this to every question.
    IOSDevice infoWhenPrinted(const std::string& output)
    {
        writePrinting("ideviceinfo", output);
        return IOSDeviceManager::info("udid", host());
    }

    /// Whether a detection throws CancellationError that is cancelled once a tool of writeHanging runs.
    bool detectionEndsWhenCancelled()
    {
        const Cancellation cancellation;
        auto detection = std::async(std::launch::async, [&] {
            try {
                detect(cancellation);
                return false;
            } catch (const CancellationError&) {
                return true;
            }
        });
        EXPECT_TRUE(appears(folder() / "begun"));
        cancellation.cancel();
        return detection.get();
    }
};

} // namespace Korvane
