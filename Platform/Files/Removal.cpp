// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/Removal.h"

#include "Platform/Files/Retry.h"
#include "Platform/Files/TreeRemover.h"

#include <unistd.h>

namespace Korvane {

std::optional<FileError> removeForGood(const ItemPlace& item)
{
    if (item.status.isDirectory)
        return TreeRemover(item).run();
    if (const int error = errorOf([&] { return unlinkat(item.parent.get(), item.name.c_str(), 0); }))
        return FileError(item.path, std::error_code(error, std::system_category()));
    return std::nullopt;
}

} // namespace Korvane
