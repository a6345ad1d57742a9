// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Workspace.h"

#include "Platform/Applications/LinuxApplications.h"
#include "Platform/FileManagerService.h"
#include "Platform/FileUri.h"

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <algorithm>
#include <cstdlib>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Korvane {

namespace {

bool isSet(const char* variable)
{
    const char* value = std::getenv(variable);
    return value != nullptr && value[0] != '\0';
}

/// A scheme that the desktop can know, and then something: no option of a command, no address of another platform.
bool isAddressForDesktop(const std::string& url)
{
    const auto colon = url.find(':');
    const auto isOfScheme = [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
            || (character >= '0' && character <= '9') || character == '+' || character == '-' || character == '.';
    };
    return colon != std::string::npos && colon > 0 && colon + 1 < url.size() && !url.starts_with('-')
        && !url.starts_with("x-apple") && url.find('\0') == std::string::npos
        && std::all_of(url.begin(), url.begin() + static_cast<std::ptrdiff_t>(colon), isOfScheme);
}

/// The desktop's opener, at its absolute place on the search path; empty when it has none.
std::filesystem::path opener(const std::vector<std::filesystem::path>& searchPath)
{
    for (const auto& folder : searchPath) {
        const auto program = folder / "xdg-open";
        std::error_code error;
        if (std::filesystem::is_regular_file(program, error) && ::access(program.c_str(), X_OK) == 0)
            return program;
    }
    return {};
}

class LinuxWorkspace final : public Workspace {
public:
    explicit LinuxWorkspace(LinuxApplications applications)
        : m_applications(std::move(applications))
    {
    }

    std::vector<RunningApplication> runningApplications() const override
    {
        std::vector<RunningApplication> running;
        for (auto& identifier : m_applications.runningIdentifiers())
            running.push_back({ std::move(identifier) });
        return running;
    }

    bool open(const std::string& url) const override
    {
        const auto program = opener(m_applications.searchPath);
        // Without a desktop the opener would start a browser in the terminal.
        const bool hasDesktop = isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
        if (!isAddressForDesktop(url) || program.empty() || !hasDesktop)
            return false;
        QProcess process;
        process.setProgram(QString::fromStdString(program.native()));
        process.setArguments({ QString::fromStdString(url) });
        process.setStandardInputFile(QProcess::nullDevice());
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        return process.startDetached();
    }

    bool showInFileManager(const std::filesystem::path& path) const override
    {
        if (!path.is_absolute())
            return false;
        struct stat status { };
        if (::lstat(path.c_str(), &status) != 0)
            return false;
        return showInFileManagerService(fileUri(path)) || open(fileUri(path.parent_path()));
    }

private:
    LinuxApplications m_applications;
};

} // namespace

std::shared_ptr<Workspace> makeWorkspace(const Environment& environment)
{
    return std::make_shared<LinuxWorkspace>(LinuxApplications::ofThisProcess(environment.dataHome()));
}

} // namespace Korvane
