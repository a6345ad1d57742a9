// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/FlatpakStandIn.h"

#include "Tests/Support/TemporaryFolder.h"

namespace Korvane {
namespace {

/// Lists and removes as the tool does; "$state" is the folder of its state.
constexpr const char* behaviour = R"(
case "$1" in
list)
    cat "$state/listing"
    ;;
uninstall)
    for identifier; do :; done
    if [ ! -d "$FLATPAK_USER_DIR/app/$identifier" ]; then
        echo "error: $identifier/*unspecified*/*unspecified* not installed" >&2
        exit 1
    fi
    rm -r "$FLATPAK_USER_DIR/app/$identifier"
    grep -v "^$identifier	" "$state/listing" > "$state/rest"
    mv "$state/rest" "$state/listing"
    ;;
*)
    exit 2
    ;;
esac
)";

} // namespace

FlatpakStandIn::FlatpakStandIn(const std::filesystem::path& programFolder, const Environment& environment)
    : m_program(programFolder / "flatpak")
    , m_state(programFolder / "flatpak-state")
    , m_applications(environment.dataHome() / "flatpak/app")
{
    writeFile(m_state / "listing", "");
    replaceBy(behaviour);
}

std::filesystem::path FlatpakStandIn::install(
    const std::string& identifier, const std::string& name, std::size_t bytes) const
{
    writeFile(m_state / "listing", readFile(m_state / "listing") + identifier + '\t' + name + '\n');
    const auto folder = m_applications / identifier;
    writeFile(folder / "current/active/files/bin/program", bytes);
    return folder;
}

void FlatpakStandIn::replaceBy(const std::string& script) const
{
    writeFile(
        m_program, "#!/bin/sh\nstate='" + m_state.native() + "'\necho \"$*\" >> \"$state/calls\"\n" + script + '\n');
    std::filesystem::permissions(m_program, std::filesystem::perms(0755));
}

std::string FlatpakStandIn::calls() const { return readFile(m_state / "calls"); }

} // namespace Korvane
