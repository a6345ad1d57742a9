// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/DesktopShell.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <utility>

namespace Korvane {

DesktopShell::DesktopShell(Environment environment, std::filesystem::path folder)
    : m_environment(std::move(environment))
    , m_folder(std::move(folder))
{
    std::filesystem::create_directory(m_folder / "run");
    std::filesystem::permissions(m_folder / "run", std::filesystem::perms::owner_all);
}

bool DesktopShell::hasTool(const std::string& name)
{
    return std::system(("command -v " + name + " >/dev/null").c_str()) == 0;
}

std::string DesktopShell::outputOf(const std::string& command) const
{
    const auto script = m_folder / "script";
    std::ofstream(script) << "export HOME='" << m_environment.home.native() << "' XDG_DATA_HOME='"
                          << m_environment.dataHome().native() << "' XDG_RUNTIME_DIR='" << (m_folder / "run").native()
                          << "' GVFS_DISABLE_FUSE=1 LC_ALL=C.UTF-8\n"
                          << "unset DBUS_SESSION_BUS_ADDRESS\ncd \"$HOME\"\n"
                          << command << '\n';
    std::FILE* const pipe = popen(("sh '" + script.native() + "' 2>/dev/null").c_str(), "r");
    std::string output;
    std::array<char, 4096> buffer{};
    for (std::size_t count = 1; count > 0;) {
        count = std::fread(buffer.data(), 1, buffer.size(), pipe);
        output.append(buffer.data(), count);
    }
    pclose(pipe);
    return output;
}

} // namespace Korvane
