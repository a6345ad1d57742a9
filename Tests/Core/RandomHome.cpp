// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/RandomHome.h"

#include "Platform/DisplayText.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"

#include <array>
#include <system_error>

#include <sys/stat.h>

namespace Korvane {

using namespace std::chrono_literals;

std::string RandomHome::randomName()
{
    static const std::array<std::string, 40> names{ "a", "b", "c", "Documents", "Documents", "Library", "Library",
        "Caches", "Logs", "Developer", "Xcode", "DerivedData", "node_modules", "target", "vendor", "Pods", "Carthage",
        "venv", "bower_components", "__pycache__", ".venv", ".git", ".build", ".gradle", ".terraform", ".m2",
        "Node_Modules", "library", ".hidden", ".Trash", ".cache", "Editor.app", "TOOL.APP", "Photos.photoslibrary",
        "x.bundle", "bad\xff", "com.apple.thing", "org.example.Player", "with space", "\xC3\xA9t\xC3\xA9" };
    const auto& name = names[below(names.size())];
    return m_takesAnyBytes ? name : displayText(std::string_view(name));
}

std::filesystem::path RandomHome::randomFolder(const std::filesystem::path& folder)
{
    auto path = folder;
    for (std::size_t depth = below(5); depth > 0; --depth)
        path /= randomName();
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return error || !std::filesystem::is_directory(std::filesystem::symlink_status(path)) ? folder : path;
}

void RandomHome::makeFile(const std::filesystem::path& path)
{
    // Few sizes and few contents, some alike in the first bytes only, so that sets come about.
    static const std::array<std::size_t, 8> sizes{ 0, 90, 100, 3000, 3000, 4097, 5000, 20'000 };
    const auto size = sizes[below(sizes.size())];
    std::string content(size, static_cast<char>('a' + below(2)));
    if (size > 1500 && below(2) == 0)
        content[1500] = 'z';
    writeFile(path, content);
    if (below(8) == 0)
        std::filesystem::resize_file(path, 50'000); // A hole at the end.
    else if (below(8) == 0)
        writeAllocatedFile(path, 12'288);
    setModified(path, std::chrono::system_clock::time_point(24h * 365 * 40) + 1h * below(4));
    m_lastFile = path;
}

void RandomHome::makeEntry(const std::filesystem::path& path)
{
    std::error_code error;
    switch (below(12)) {
    case 0:
        std::filesystem::create_symlink(m_lastFile, path, error);
        return;
    case 1:
        std::filesystem::create_directory_symlink("..", path, error);
        return;
    case 2:
        if (!m_lastFile.empty())
            std::filesystem::create_hard_link(m_lastFile, path, error);
        return;
    case 3:
        (void)mkfifo(path.c_str(), 0600);
        return;
    default:
        makeFile(path);
    }
}

void RandomHome::fill(const std::filesystem::path& folder, int entries)
{
    m_takesAnyBytes = takesNamesOfAnyBytes(folder);
    for (int i = 0; i < entries; ++i) {
        const auto path = randomFolder(folder) / (randomName() + (below(2) == 0 ? "" : std::to_string(below(50))));
        if (!std::filesystem::exists(std::filesystem::symlink_status(path)))
            makeEntry(path);
    }
}

} // namespace Korvane
