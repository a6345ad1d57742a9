// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A slow disk, for pictures of what is over too soon: loaded before a program (ld.so(8), LD_PRELOAD), it lets the
// program wait at a folder that it reads, or at a file that it moves, for as long as a file exists.
//
// BRAKE_READING names the file for folders; so many as the number in it tells are read before, slowly. BRAKE_MOVING names
// that for moves.

#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/syscall.h>
#include <unistd.h>

static atomic_int foldersRead;

static int numberIn(const char* path)
{
    int number = 0;
    FILE* const file = fopen(path, "re");
    if (file != NULL) {
        if (fscanf(file, "%d", &number) != 1)
            number = 0;
        fclose(file);
    }
    return number;
}

static void waitAt(const char* variable)
{
    const char* const path = getenv(variable);
    while (path != NULL && access(path, F_OK) == 0)
        usleep(20000);
}

static void waitAtFolder(void)
{
    const char* const path = getenv("BRAKE_READING");
    if (path == NULL || access(path, F_OK) != 0)
        return;
    if (atomic_fetch_add(&foldersRead, 1) < numberIn(path))
        usleep(40000);
    else
        waitAt("BRAKE_READING");
}

long syscall(long number, ...)
{
    static long (*real)(long, ...);
    if (real == NULL)
        real = (long (*)(long, ...))dlsym(RTLD_NEXT, "syscall");
    long words[6];
    va_list list;
    va_start(list, number);
    for (int i = 0; i < 6; ++i)
        words[i] = va_arg(list, long);
    va_end(list);
    if (number == SYS_getdents64)
        waitAtFolder();
    return real(number, words[0], words[1], words[2], words[3], words[4], words[5]);
}

int renameat2(int oldFolder, const char* oldName, int newFolder, const char* newName, unsigned int flags)
{
    static int (*real)(int, const char*, int, const char*, unsigned int);
    if (real == NULL)
        real = (int (*)(int, const char*, int, const char*, unsigned int))dlsym(RTLD_NEXT, "renameat2");
    waitAt("BRAKE_MOVING");
    return real(oldFolder, oldName, newFolder, newName, flags);
}
