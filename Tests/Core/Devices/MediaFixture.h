// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaManager.h"
#include "Core/Devices/MediaError.h"
#include "Platform/FileError.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/AfcStandIn.h"
#include "Tests/Support/FileAppears.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestTrash.h"

#include <functional>
#include <future>

namespace Korvane {

/// A device that is a folder, reached by the stand-in of the tool.
class MediaFixture : public ScanFixture {
protected:
    using Paths = std::vector<std::string>;

    AfcStandIn& tool() { return m_tool; }
    /// The tool behaves so from now on.
    template <typename Change> void change(Change change)
    {
        change(m_tool.rules);
        m_tool.apply();
    }
    /// The builds in use with both forms of their prompt, and the plainest there may be.
    static std::vector<std::string> styles() { return { "plain", "echo", "plain spaced", "echo spaced", "bare" }; }

    IOSMediaManager manager() { return IOSMediaManager(host()); }
    std::vector<IOSMediaFolder> list(const Cancellation& cancellation = {})
    {
        return manager().listMedia(udid, {}, cancellation);
    }
    Paths listedPaths()
    {
        Paths paths;
        for (const auto& folder : list()) {
            for (const auto& file : folder.files)
                paths.push_back(file.path);
        }
        return paths;
    }

    /// Lists, then deletes; what is still there.
    Paths remove(const Paths& paths)
    {
        const auto listing = list();
        m_tool.forget();
        return manager().remove(paths, udid, listing);
    }

    /// The commands that the tool was given, without "quit".
    Paths commands() const
    {
        Paths commands;
        for (const auto& line : m_tool.log()) {
            if (line != "quit" && !line.starts_with("run "))
                commands.push_back(line);
        }
        return commands;
    }

    static IOSMediaFile file(const std::string& path) { return { path, path.substr(path.rfind('/') + 1) }; }

    /// Why a copy failed; empty when it did not.
    std::string exportFailure(const std::string& path, const std::filesystem::path& directory)
    {
        try {
            manager().exportFile(file(path), udid, directory, m_known);
            return "";
        } catch (const MediaError& error) {
            return error.what();
        }
    }

    /// The contents of the files in the Trash, sorted.
    std::vector<std::string> trashed()
    {
        std::vector<std::string> contents;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(testTrash(host().environment), error))
            contents.push_back(readFile(entry.path()));
        std::sort(contents.begin(), contents.end());
        return contents;
    }
    /// No folder gets a path lent from now on.
    void lendNoPath() { host().environment.temporaryDirectory = home() / "no temporary directory"; }

    /// Waits until the tool hangs, cancels, and tells whether the work says that it was cancelled.
    bool isCancelled(const std::function<void(const Cancellation&)>& work)
    {
        const Cancellation cancellation;
        auto running = std::async(std::launch::async, [&] { work(cancellation); });
        EXPECT_TRUE(appears(m_tool.rules.begun));
        cancellation.cancel();
        try {
            running.get();
            return false;
        } catch (const CancellationError&) {
            return true;
        }
    }

    const std::string udid = "00008030-001A";
    std::filesystem::path downloads() const { return home() / "Downloads"; }
    std::vector<IOSMediaFolder> m_known; ///< What exportFailure says that the device has.

private:
    AfcStandIn m_tool{ folder().path() };
};

} // namespace Korvane
