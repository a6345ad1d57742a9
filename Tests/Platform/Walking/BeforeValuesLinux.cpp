// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Walking/BeforeValues.h"

#include <atomic>

#include <dlfcn.h>
#include <sys/stat.h>

namespace {

std::atomic<Korvane::BeforeValues> beforeValues{ nullptr };

using AskForValues = int(int, const char*, int, unsigned, struct statx*);

} // namespace

/// Takes the place of the C library's own.
extern "C" int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept
{
    static auto* const original = reinterpret_cast<AskForValues*>(dlsym(RTLD_NEXT, "statx"));
    if (const auto function = beforeValues.load())
        function();
    return original(folder, path, flags, mask, status);
}

void Korvane::setBeforeValues(BeforeValues function) { beforeValues = function; }
