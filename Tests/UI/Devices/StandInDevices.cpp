// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/StandInDevices.h"

#include "Tests/Support/StandInProgram.h"

#include <utility>

namespace Korvane {

namespace {

/// Reads commands as the media tool does, prompts and answers in the style that puts an answer right after the prompt.
constexpr const char* mediaTool = R"(root="$there/$2"
prompt=$(printf '\033[0;30m\033[47mafc:\033[m\033[1;33m\033[44m/\033[m> ')
printf %s "$prompt"
refused() { grep -qxF "$1" "$there/refused" 2>/dev/null && printf 'Error: Failed for %s: Permission denied (10)\n' "$1"; }
while IFS= read -r line; do
    printf '%s\n' "$line" >>"$there/commands"
    while [ -e "$there/command.held" ] && grep -qxF "$line" "$there/command.held"; do
        : >"$there/command.waits"
        sleep 0.02
    done
    case "$line" in
    quit) exit 0 ;;
    "ls /DCIM") [ -e "$there/folders" ] && cat "$there/folders" || ls -1 "$root/DCIM" 2>/dev/null ;;
    "ls "*) [ -e "$there/files" ] && cat "$there/files" || ls -1 "$root${line#ls }" 2>/dev/null || echo 'Error: Failed to list: Object not found (8)' ;;
    "rm "*) refused "${line#rm }" || rm "$root${line#rm }" ;;
    "get "*)
        rest=${line#get }
        source=${rest%% /*}
        refused "$source" || { printf '\r50%% (1.0 MB/s)   \r100%% (1.0 MB/s)   \n'; cp "$root$source" "/${rest#* /}"; }
        ;;
    esac
    printf %s "$prompt"
done)";

} // namespace

StandInDevices::StandInDevices(const Environment& environment, std::filesystem::path folder)
    : m_tools(environment.deviceToolFolders.at(1))
    , m_folder(std::move(folder))
{
    std::filesystem::create_directories(m_folder);
    writeFile(m_folder / "connected", "");
    const std::string begin = "there='" + m_folder.string()
        + "'\ntool=$(basename \"$0\")\necho $$ >\"$there/$tool.id\"\n"
          "while [ -e \"$there/$tool.held\" ]; do sleep 0.02; done\n";
    writeProgram(m_tools / "idevice_id", begin + "cat \"$there/connected\"");
    writeProgram(m_tools / "ideviceinfo", begin + "cat \"$there/$2/$4\"");
    writeProgram(m_tools / "afcclient", begin + mediaTool);
}

void StandInDevices::connect(
    const std::string& udid, const std::string& name, const std::string& total, const std::string& free) const
{
    writeFile(m_folder / udid / "DeviceName", name + "\n");
    writeFile(m_folder / udid / "ProductVersion", "17.4.1\n");
    writeFile(m_folder / udid / "TotalDiskCapacity", total + "\n");
    writeFile(m_folder / udid / "TotalDataAvailable", free + "\n");
    std::filesystem::create_directories(m_folder / udid / "DCIM");
    writeFile(m_folder / "connected", readFile(m_folder / "connected") + udid + "\n");
}

} // namespace Korvane
