// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-bare-trash HOME FOLDER [sync]: the least that a move of everything in FOLDER to the Trash of HOME takes: one
// info file written (and with "sync" brought to the disk) and one rename for each, with no regard for safety.

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool writeRecord(const std::string& path, const std::string& original, bool isSynced)
{
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    const std::string text = "[Trash Info]\nPath=" + original + "\nDeletionDate=2026-01-01T00:00:00\n";
    const bool isWritten = file >= 0 && write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    return isWritten && (!isSynced || fsync(file) == 0) && close(file) == 0;
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3) {
        std::fprintf(stderr, "usage: bench-bare-trash HOME FOLDER [sync]\n");
        return 2;
    }
    const std::string trash = std::string(arguments[1]) + "/.local/share/Trash";
    std::filesystem::create_directories(trash + "/files");
    std::filesystem::create_directories(trash + "/info");
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[2]))
        paths.push_back(entry.path());
    for (const auto& path : paths) {
        const std::string name = path.filename().native();
        if (!writeRecord(trash + "/info/" + name + ".trashinfo", path.native(), count > 3)
            || rename(path.c_str(), (trash + "/files/" + name).c_str()) != 0) {
            std::perror(path.c_str());
            return 1;
        }
    }
    return 0;
}
