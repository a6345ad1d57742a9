// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/RestlessFolder.h"

#include "Tests/Support/TemporaryFolder.h"

#include <random>
#include <system_error>
#include <utility>
#include <vector>

namespace Korvane {

namespace fs = std::filesystem;

RestlessFolder::RestlessFolder(fs::path folder)
    : m_folder(std::move(folder))
    , m_names({ "r0", "r1", "r2", "r3", "r4", "r5" })
{
    fs::create_directory(m_folder);
    for (const auto& name : m_names)
        writeFile(m_folder / name / name, std::string(30'000, 'r'));
    m_thread = std::thread([this] { change(); });
}

RestlessFolder::~RestlessFolder()
{
    m_ends = true;
    m_thread.join();
}

bool RestlessFolder::mayHold(const fs::path& path) const
{
    const auto relative = path.lexically_relative(m_folder);
    for (const auto& part : relative) {
        if (m_names.count(part.native()) == 0)
            return false;
    }
    return !relative.empty();
}

void RestlessFolder::change()
{
    std::mt19937 random(1);
    const std::vector<std::string> names(m_names.begin(), m_names.end());
    const auto below = [&](std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(random); };
    while (!m_ends) {
        const auto folder = m_folder / names[below(names.size())];
        const auto file = folder / names[below(names.size())];
        std::error_code error; // One change often finds what another has left, and then does nothing.
        switch (below(6)) {
        case 0:
            fs::remove_all(folder, error);
            break;
        case 1:
            fs::resize_file(file, 25'000 + 5'000 * below(3), error);
            break;
        case 2:
            fs::remove(file, error);
            fs::create_directory_symlink("..", file, error);
            break;
        case 3:
            fs::rename(file, folder / names[below(names.size())], error);
            break;
        default:
            if (!fs::exists(fs::symlink_status(file, error)))
                writeFile(file, std::string(30'000, 'r'));
        }
    }
}

} // namespace Korvane
