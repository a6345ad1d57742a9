// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/Retry.h"
#include "Platform/Files/TrashRecord.h"

#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

std::string fileName(const std::string& name) { return name + ".trashinfo"; }

} // namespace

int TrashRecord::write(const std::string& text)
{
    constexpr int flags = O_CREAT | O_EXCL | O_WRONLY | O_NOFOLLOW | O_CLOEXEC;
    const int opened = retryInterrupted([&] { return openat(m_info, fileName(m_name).c_str(), flags, 0600); });
    if (opened < 0)
        return -opened;
    m_file = FileDescriptor(opened);
    const int error = fill(text);
    if (error != 0)
        takeBack();
    return error;
}

int TrashRecord::fill(const std::string& text)
{
    for (std::string_view rest = text; !rest.empty();) {
        const ssize_t written = retryInterrupted([&] { return ::write(m_file.get(), rest.data(), rest.size()); });
        if (written <= 0)
            return written < 0 ? static_cast<int>(-written) : EIO;
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
    if (const int error = errorOf([&] { return fsync(m_file.get()); }))
        return error;
    // Some file systems cannot sync a folder and say so; there is nothing more to be done on them.
    const int error = errorOf([&] { return fsync(m_info); });
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}

bool TrashRecord::isGone() const
{
    struct stat status { };
    return fstat(m_file.get(), &status) == 0 && status.st_nlink == 0;
}

void TrashRecord::takeBack()
{
    if (!isGone()) // Else what has the name now is somebody else's.
        errorOf([&] { return unlinkat(m_info, fileName(m_name).c_str(), 0); });
    m_file.close();
}

} // namespace Korvane
