// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-bare-remove PATH...: the least that one thread can do to remove a tree, with no regard for safety.

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool removeFolder(int parent, const char* name)
{
    const int folder = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const stream = folder < 0 ? nullptr : fdopendir(folder);
    if (stream == nullptr)
        return false;
    std::vector<std::string> folders;
    bool isRemoved = true;
    while (const dirent* entry = readdir(stream)) {
        if (entry->d_type != DT_DIR)
            isRemoved = unlinkat(folder, entry->d_name, 0) == 0 && isRemoved;
        else if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            folders.emplace_back(entry->d_name);
    }
    for (const std::string& inner : folders)
        isRemoved = removeFolder(folder, inner.c_str()) && isRemoved;
    closedir(stream);
    return unlinkat(parent, name, AT_REMOVEDIR) == 0 && isRemoved;
}

} // namespace

int main(int count, char** arguments)
{
    for (int index = 1; index < count; ++index) {
        if (!removeFolder(AT_FDCWD, arguments[index])) {
            std::perror(arguments[index]);
            return 1;
        }
    }
    return 0;
}
