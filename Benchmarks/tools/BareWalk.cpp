// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-bare-walk [--home BYTES] PATH...: the yardstick. One thread and only the system calls that a walk cannot do
// without: open each folder, getdents, one fstatat for each entry. Prints the allocated bytes of the regular files
// below each path; with --home only of those that occupy so many, and it leaves out what a search of a home folder
// leaves out: hidden names, "Library", "node_modules" and packages.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct ListedEntry {
    std::uint64_t inode;
    std::int64_t offset;
    unsigned short length;
    unsigned char type;
    char name[1];
};

bool homeRules = false;
std::int64_t smallest = 0;

bool isLeftOut(const char* name, bool isFolder)
{
    if (name[0] == '.')
        return homeRules || name[1] == 0 || (name[1] == '.' && name[2] == 0);
    if (!homeRules || !isFolder)
        return false;
    const auto length = std::strlen(name);
    return std::strcmp(name, "Library") == 0 || std::strcmp(name, "node_modules") == 0
        || (length > 4 && std::strcmp(name + length - 4, ".app") == 0);
}

// Recursive with its buffer on the stack: enough for a tree made for measuring.
std::int64_t walk(int parent, const char* path) // NOLINT(misc-no-recursion)
{
    const int folder = openat(parent, path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0)
        return 0;
    std::int64_t total = 0;
    alignas(ListedEntry) char buffer[32768];
    long length = 0;
    while ((length = syscall(SYS_getdents64, folder, buffer, sizeof buffer)) > 0) {
        for (long position = 0; position < length;) {
            const auto* entry = reinterpret_cast<const ListedEntry*>(buffer + position);
            position += entry->length;
            struct stat status;
            if (isLeftOut(entry->name, entry->type == DT_DIR)
                || fstatat(folder, entry->name, &status, AT_SYMLINK_NOFOLLOW) != 0)
                continue;
            if (S_ISREG(status.st_mode))
                total += status.st_blocks * 512 >= smallest ? status.st_blocks * 512 : 0;
            else if (S_ISDIR(status.st_mode))
                total += walk(folder, entry->name);
        }
    }
    close(folder);
    return total;
}

} // namespace

int main(int count, char** arguments)
{
    int first = 1;
    if (count > 2 && std::strcmp(arguments[1], "--home") == 0) {
        homeRules = true;
        smallest = std::atoll(arguments[2]);
        first = 3;
    }
    std::int64_t total = 0;
    for (int index = first; index < count; ++index)
        total += walk(AT_FDCWD, arguments[index]);
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
