// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/Program.h"
#include "Tests/CLI/ProgramRun.h"
#include "Tests/Support/FileAppears.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <future>

namespace Korvane {

/// Runs of the real program, and what they printed.
class ProgramFixture : public testing::Test {
protected:
    ProgramFixture()
    {
        std::filesystem::create_directory(home());
        std::filesystem::create_directory(folder / "tmp");
    }

    std::filesystem::path home() const { return folder / "home"; }

    std::filesystem::path makeLog(const std::string& name, std::size_t bytes = 5000) const
    {
        writeFile(home() / "Library/Logs" / name, bytes);
        return home() / "Library/Logs" / name;
    }
    std::filesystem::path makeSystemCache() const
    {
        writeFile(home() / "Library/Caches/com.apple.thing/data", std::size_t{ 9000 });
        return home() / "Library/Caches/com.apple.thing";
    }

    /// Runs to the end; the exit status.
    int run(const std::vector<std::string>& arguments, ProgramRun::Output standardOutput = ProgramRun::Output::Captured)
    {
        ProgramRun program(folder.path(), arguments, standardOutput);
        program.finish();
        output = program.output();
        errors = program.errors();
        return program.status();
    }

    /// Carries out a command line in this process.
    ExitStatus runHere(Program& program, const std::vector<std::string>& arguments)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const auto status = program.run(arguments);
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return status;
    }

    /// The same, cancelled once a program that it runs has made this file.
    ExitStatus runCancelled(
        const Host& host, const std::vector<std::string>& arguments, const std::filesystem::path& begun)
    {
        const Cancellation cancellation;
        Program program(host, cancellation);
        auto status = std::async(std::launch::async, [&] { return runHere(program, arguments); });
        EXPECT_TRUE(appears(begun));
        cancellation.cancel();
        return status.get();
    }

    /// The one JSON object that was printed.
    QJsonObject json() const
    {
        QJsonParseError error;
        const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(output), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << output;
        return document.object();
    }

    static std::string text(const QJsonValue& value) { return value.toString().toStdString(); }

    TemporaryFolder folder;
    std::string output;
    std::string errors;
};

} // namespace Korvane
